// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Handle.h"
#include "../../platform/PlatformParts.h"
#include <kiln/Drives.h>
#include <kiln/Paths.h>
#include <kiln/Unicode.h>

namespace Kiln
{
namespace
{
constexpr int lockAttempts = 20;
constexpr DWORD lockInterval = 500; // milliseconds

bool isDrive(int number)
{
	return number >= 0 && number < 26;
}

bool control(const Handle& device, DWORD code, void* input = nullptr, DWORD inputSize = 0)
{
	DWORD returned = 0;
	return DeviceIoControl(device.get(), code, input, inputSize, nullptr, 0, &returned, nullptr) != FALSE;
}

bool lockVolume(const Handle& device)
{
	for (int attempt = 1; !control(device, FSCTL_LOCK_VOLUME); ++attempt)
	{
		if (attempt == lockAttempts)
		{
			return false;
		}
		Sleep(lockInterval);
	}
	return true;
}

/** The volume is out of use already; a device that cannot eject leaves the medium to the user's hands. */
void ejectMedium(const Handle& device)
{
	PREVENT_MEDIA_REMOVAL removal{};
	if (control(device, IOCTL_STORAGE_MEDIA_REMOVAL, &removal, sizeof removal))
	{
		control(device, IOCTL_STORAGE_EJECT_MEDIA);
	}
}
} // namespace

int driveNumber(const std::string& path)
{
	return PathGetDriveNumberW(widePath(path).c_str());
}

std::string driveRoot(int number)
{
	wchar_t root[4] = {};
	return isDrive(number) ? toUtf8(PathBuildRootW(root, number)) : std::string();
}

std::string devicePath(int number)
{
	return isDrive(number) ? std::string("\\\\.\\") + static_cast<char>('A' + number) + ":" : std::string();
}

int ejectDrive(const std::string& path)
{
	const int number = driveNumber(path);
	if (number < 0)
	{
		return number & ~0xFF;
	}
	// A network drive has no device here; its refusal would take all the attempts.
	if (GetDriveTypeW(toWide(driveRoot(number)).c_str()) == DRIVE_REMOTE)
	{
		return 0;
	}
	const Handle device = openExisting(toWide(devicePath(number)), GENERIC_READ, 0);
	if (!device || !lockVolume(device) || !control(device, FSCTL_DISMOUNT_VOLUME))
	{
		return 0;
	}
	ejectMedium(device);
	return 1;
}
} // namespace Kiln
