// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Handle.h"
#include "../../platform/PlatformParts.h"
#include "FileSystemNames.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include <kiln/Drives.h>
#include <kiln/Unicode.h>
#include <kiln/VolumeEventMonitor.h>
#include <string_view>

namespace Kiln
{
namespace
{
/** As long as it lives, the system asks this thread's user for no medium. */
class QuietDrives
{
public:
	QuietDrives() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before_); }
	~QuietDrives() { SetThreadErrorMode(before_, nullptr); }
	QuietDrives(const QuietDrives&) = delete;
	QuietDrives& operator=(const QuietDrives&) = delete;

private:
	DWORD before_ = 0;
};

bool readFileSystem(const std::wstring& root, VolumeInfo& volume)
{
	wchar_t label[260] = {};
	wchar_t name[255] = {};
	DWORD serial = 0;
	DWORD flags = 0;
	if (!GetVolumeInformationW(root.c_str(), label, static_cast<DWORD>(std::size(label)), &serial, nullptr, &flags,
			name, static_cast<DWORD>(std::size(name))))
	{
		return false;
	}
	volume.name = *label ? toUtf8(label) : "Untitled";
	volume.fsType = fileSystemOf(toUtf8(name));
	volume.isReadOnly = (flags & FILE_READ_ONLY_VOLUME) != 0;
	return true;
}

void readSpace(VolumeInfo& volume)
{
	ULARGE_INTEGER available{};
	ULARGE_INTEGER total{};
	if (GetDiskFreeSpaceExW(toWide(volume.mountPath).c_str(), &available, &total, nullptr))
	{
		volume.capacity = total.QuadPart;
		volume.availableBytes = available.QuadPart;
	}
}

/** What a storage device answers about itself: a descriptor, and texts behind it. */
class DeviceAnswer
{
public:
	/** Asks the device. @return whether it answered */
	bool ask(const Handle& device)
	{
		STORAGE_PROPERTY_QUERY query{};
		query.PropertyId = StorageDeviceProperty;
		query.QueryType = PropertyStandardQuery;
		DWORD returned = 0;
		const bool isAnswered = DeviceIoControl(device.get(), IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof query,
									bytes_, sizeof bytes_, &returned, nullptr) != FALSE;
		length_ = std::min<std::size_t>(returned, sizeof bytes_);
		std::memcpy(&descriptor_, bytes_, sizeof descriptor_);
		return isAnswered;
	}

	bool isRemovable() const { return descriptor_.RemovableMedia != FALSE; }

	/** Empty for a device that has none, or names a place outside its answer. */
	std::string serialNumber() const
	{
		const std::size_t offset = descriptor_.SerialNumberOffset;
		if (offset == 0 || offset >= length_)
		{
			return {};
		}
		const std::string_view behind(bytes_ + offset, length_ - offset);
		// What is not UTF-8 must not get further.
		return toUtf8(toWide(behind.substr(0, behind.find('\0'))));
	}

private:
	char bytes_[1024] = {};
	std::size_t length_ = 0;
	STORAGE_DEVICE_DESCRIPTOR descriptor_{};
};

/** 1 where the device has no partitions to tell of. */
DWORD partitionNumber(const Handle& device)
{
	PARTITION_INFORMATION_EX partition{};
	DWORD returned = 0;
	const bool isAnswered = DeviceIoControl(device.get(), IOCTL_DISK_GET_PARTITION_INFO_EX, nullptr, 0, &partition,
								sizeof partition, &returned, nullptr) != FALSE;
	return isAnswered ? partition.PartitionNumber : 1;
}

void readDevice(int drive, VolumeInfo& volume)
{
	DeviceAnswer answer;
	const Handle device = openExisting(toWide(devicePath(drive)), 0, 0, FILE_SHARE_READ);
	if (device && answer.ask(device))
	{
		volume.identifier = answer.serialNumber() + ";" + std::to_string(partitionNumber(device));
		volume.isRemovable = answer.isRemovable();
	}
}
} // namespace

int VolumeEventMonitor::queryVolumeInfo(const std::wstring& path, VolumeInfo& out)
{
	const int drive = PathGetDriveNumberW(path.c_str());
	if (drive < 0)
	{
		return drive & ~0xFF;
	}
	const QuietDrives quiet;
	const std::string root = driveRoot(drive);
	const std::wstring wideRoot = toWide(root);
	VolumeInfo volume;
	volume.mountPath = root.substr(0, root.find('\\'));
	const bool isReadable = readFileSystem(wideRoot, volume);
	if (isReadable)
	{
		readSpace(volume);
		readDevice(drive, volume);
		volume.isNetwork = GetDriveTypeW(wideRoot.c_str()) == DRIVE_REMOTE;
	}
	out = volume;
	return isReadable ? 1 : 0;
}
} // namespace Kiln
