// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "FakeComputer.h"

#include "ImportOverride.h"
#include <algorithm>
#include <winioctl.h>

namespace
{
/** Copies as much as the room allows. @return whether the text and its NUL fit */
bool copyText(const std::wstring& text, wchar_t* out, DWORD room)
{
	text.copy(out, room);
	if (text.size() < room)
	{
		out[text.size()] = L'\0';
	}
	return text.size() < room;
}

BOOL failWith(DWORD error)
{
	SetLastError(error);
	return FALSE;
}

std::string controlName(DWORD code)
{
	return "control code " + std::to_string(code);
}
} // namespace

FakeComputer::FakeComputer(std::vector<FakeVolume> rows) : volumes(std::move(rows))
{
	serveVolumes();
	serveDrives();
	serveDevices();
}

FakeComputer::~FakeComputer()
{
	replacements_.clear();
	EXPECT_TRUE(searches_.empty()) << "a search for volumes is still open";
	EXPECT_TRUE(devices_.empty()) << "a device is still open";
}

void FakeComputer::fail(const std::string& function, DWORD error, int count)
{
	const std::lock_guard guard(mutex);
	failures_[function] = {error, count};
}

void FakeComputer::failControl(DWORD code, DWORD error)
{
	fail(controlName(code), error);
}

/** Sets the last error and counts the failure. */
bool FakeComputer::isFailing(const std::string& function)
{
	const auto found = failures_.find(function);
	if (found == failures_.end() || found->second.count == 0)
	{
		return false;
	}
	--found->second.count;
	SetLastError(found->second.error);
	return true;
}

template <class Function, class StandIn>
void FakeComputer::serve(const char* name, Function* function, StandIn standIn)
{
	const auto replacement = std::make_shared<ImportOverride<Function, StandIn>>(name, function, std::move(standIn));
	replacement->allowNoCall();
	replacements_.push_back(replacement);
}

std::wstring FakeComputer::nameOf(std::size_t row) const
{
	const FakeVolume& volume = volumes[row];
	return volume.name.empty() ? L"\\\\?\\Volume{" + std::to_wstring(row) + L"}\\" : volume.name;
}

const FakeVolume* FakeComputer::findDrive(const std::wstring& path) const
{
	const auto found = std::ranges::find_if(volumes, [&](const FakeVolume& volume)
		{ return !volume.paths.empty() && volume.paths[0].substr(0, 2) == path.substr(0, 2); });
	return found == volumes.end() ? nullptr : &*found;
}

void FakeComputer::serveVolumes()
{
	serve("FindFirstVolumeW", &FindFirstVolumeW,
		[this](wchar_t* name, DWORD room)
		{
			const std::lock_guard guard(mutex);
			if (isFailing("FindFirstVolumeW"))
			{
				return INVALID_HANDLE_VALUE;
			}
			const auto search = reinterpret_cast<HANDLE>(++lastHandle_);
			searches_[search] = 0;
			if (!nextVolume(search, name, room))
			{
				searches_.erase(search);
				return INVALID_HANDLE_VALUE;
			}
			return search;
		});
	serve("FindNextVolumeW", &FindNextVolumeW,
		[this](HANDLE search, wchar_t* name, DWORD room)
		{
			const std::lock_guard guard(mutex);
			return isFailing("FindNextVolumeW") ? FALSE : nextVolume(search, name, room);
		});
	serve("FindVolumeClose", &FindVolumeClose,
		[this](HANDLE search)
		{
			const std::lock_guard guard(mutex);
			return static_cast<BOOL>(searches_.erase(search) == 1);
		});
	serve("GetVolumePathNamesForVolumeNameW", &GetVolumePathNamesForVolumeNameW,
		[this](const wchar_t* name, wchar_t* out, DWORD room, DWORD* length)
		{
			const std::lock_guard guard(mutex);
			return isFailing("GetVolumePathNamesForVolumeNameW") ? FALSE : mountPaths(name, out, room, length);
		});
}

BOOL FakeComputer::nextVolume(HANDLE search, wchar_t* name, DWORD room)
{
	std::size_t& row = searches_.at(search);
	while (row < volumes.size() && volumes[row].driveType == DRIVE_REMOTE)
	{
		++row;
	}
	if (row == volumes.size())
	{
		return failWith(ERROR_NO_MORE_FILES);
	}
	copyText(nameOf(row++), name, room);
	return TRUE;
}

BOOL FakeComputer::mountPaths(const std::wstring& name, wchar_t* out, DWORD room, DWORD* length)
{
	std::wstring list;
	for (std::size_t row = 0; row < volumes.size(); ++row)
	{
		for (const std::wstring& path : volumes[row].paths)
		{
			list += nameOf(row) == name ? path + L'\0' : std::wstring();
		}
	}
	list += L'\0';
	*length = static_cast<DWORD>(list.size());
	if (list.size() > room)
	{
		return failWith(ERROR_MORE_DATA);
	}
	list.copy(out, room);
	return TRUE;
}

void FakeComputer::serveDrives()
{
	serve("GetLogicalDrives", &GetLogicalDrives,
		[this]
		{
			const std::lock_guard guard(mutex);
			DWORD drives = 0;
			for (const FakeVolume& volume : volumes)
			{
				drives |= volume.paths.empty() ? 0 : 1u << (volume.paths[0][0] - L'A');
			}
			return isFailing("GetLogicalDrives") ? 0 : drives;
		});
	serve("GetDriveTypeW", &GetDriveTypeW,
		[this](const wchar_t* root)
		{
			const std::lock_guard guard(mutex);
			const FakeVolume* volume = findDrive(root);
			return volume ? volume->driveType : static_cast<UINT>(DRIVE_NO_ROOT_DIR);
		});
	serve("GetVolumeInformationW", &GetVolumeInformationW,
		[this](const wchar_t* root, wchar_t* label, DWORD labelRoom, DWORD*, DWORD*, DWORD* flags, wchar_t* fileSystem,
			DWORD fileSystemRoom) -> BOOL
		{
			++queries;
			onQuery(root);
			const std::lock_guard guard(mutex);
			const FakeVolume* volume = findDrive(root);
			if (!volume || root[2] != L'\\')
			{
				return failWith(ERROR_PATH_NOT_FOUND);
			}
			if (isFailing("GetVolumeInformationW"))
			{
				return FALSE;
			}
			*flags = volume->flags;
			const bool fits = copyText(volume->label, label, labelRoom);
			return copyText(volume->fileSystem, fileSystem, fileSystemRoom) && fits ? TRUE : failWith(ERROR_BAD_LENGTH);
		});
	serve("GetDiskFreeSpaceExW", &GetDiskFreeSpaceExW,
		[this](const wchar_t* folder, ULARGE_INTEGER* available, ULARGE_INTEGER* total, ULARGE_INTEGER*) -> BOOL
		{
			const std::lock_guard guard(mutex);
			const FakeVolume* volume = findDrive(folder);
			if (!volume || isFailing("GetDiskFreeSpaceExW"))
			{
				return FALSE;
			}
			available->QuadPart = volume->available;
			total->QuadPart = volume->capacity;
			return TRUE;
		});
}

void FakeComputer::serveDevices()
{
	serve("CreateFileW", &CreateFileW,
		[this, real = &CreateFileW](const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
			DWORD creation, DWORD flags, HANDLE pattern)
		{
			const std::wstring name = path;
			if (!name.starts_with(L"\\\\.\\"))
			{
				return real(path, access, share, security, creation, flags, pattern);
			}
			EXPECT_EQ(access, 0u);
			EXPECT_EQ(share, static_cast<DWORD>(FILE_SHARE_READ));
			EXPECT_EQ(creation, static_cast<DWORD>(OPEN_EXISTING));
			const std::lock_guard guard(mutex);
			const FakeVolume* volume = name.size() == 6 ? findDrive(name.substr(4)) : nullptr;
			if (isFailing("CreateFileW") || !volume || !volume->device)
			{
				SetLastError(ERROR_ACCESS_DENIED);
				return INVALID_HANDLE_VALUE;
			}
			const auto device = reinterpret_cast<HANDLE>(++lastHandle_);
			devices_[device] = *volume->device;
			return device;
		});
	serve("DeviceIoControl", &DeviceIoControl,
		[this](HANDLE device, DWORD code, void*, DWORD, void* out, DWORD room, DWORD* length, OVERLAPPED*) -> BOOL
		{
			const std::lock_guard guard(mutex);
			return isFailing(controlName(code)) ? FALSE : answer(devices_.at(device), code, out, room, length);
		});
	serve("CloseHandle", &CloseHandle,
		[this, real = &CloseHandle](HANDLE handle)
		{
			{
				const std::lock_guard guard(mutex);
				if (devices_.erase(handle) == 1)
				{
					return TRUE;
				}
			}
			return real(handle);
		});
}

BOOL FakeComputer::answer(const FakeDevice& device, DWORD code, void* out, DWORD room, DWORD* length) const
{
	if (code == IOCTL_DISK_GET_PARTITION_INFO_EX && device.partition)
	{
		PARTITION_INFORMATION_EX partition{};
		partition.PartitionNumber = *device.partition;
		EXPECT_EQ(room, 144u);
		std::memcpy(out, &partition, sizeof partition);
		*length = sizeof partition;
		return TRUE;
	}
	if (code != IOCTL_STORAGE_QUERY_PROPERTY)
	{
		return failWith(ERROR_NOT_SUPPORTED);
	}
	EXPECT_EQ(room, 1024u);
	STORAGE_DEVICE_DESCRIPTOR descriptor{};
	descriptor.Version = descriptor.Size = sizeof descriptor;
	descriptor.RemovableMedia = device.isRemovable;
	descriptor.SerialNumberOffset =
		device.serialOffset.value_or(device.serial.empty() ? 0 : static_cast<DWORD>(sizeof descriptor));
	std::string answer(reinterpret_cast<const char*>(&descriptor), sizeof descriptor);
	answer += device.serial;
	*length = static_cast<DWORD>(answer.copy(static_cast<char*>(out), room));
	return TRUE;
}
