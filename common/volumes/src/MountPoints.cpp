// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Platform.h"
#include "VolumeLog.h"
#include <algorithm>
#include <kiln/Drives.h>
#include <kiln/Unicode.h>
#include <kiln/VolumeEventMonitor.h>

namespace Kiln
{
namespace
{
/** Characters of a volume's name, as "\\?\Volume{...}\", with its NUL. */
constexpr DWORD nameRoom = 260;

struct SearchCloser
{
	void operator()(HANDLE search) const { FindVolumeClose(search); }
};

/**
 * Appends the volume's mount paths; none where the platform cannot tell them.
 * @return false when the name is none that the platform takes
 */
bool appendMountPaths(const std::string& volume, std::vector<std::string>& out)
{
	const std::wstring name = toWide(volume);
	if (name.empty() || name.size() >= nameRoom)
	{
		return false;
	}
	std::wstring paths(261, L'\0');
	DWORD length = 0;
	const auto room = [&] { return static_cast<DWORD>(paths.size()); };
	while (!GetVolumePathNamesForVolumeNameW(name.c_str(), paths.data(), room(), &length))
	{
		// A list that grows meanwhile needs more with each attempt.
		if (GetLastError() != ERROR_MORE_DATA || length <= room())
		{
			return true;
		}
		paths.assign(length, L'\0');
	}
	for (std::size_t begin = 0, end = 0; begin < paths.size() && paths[begin]; begin = end + 1)
	{
		end = std::min(paths.find(L'\0', begin), paths.size());
		out.push_back(toUtf8(std::wstring_view(paths).substr(begin, end - begin)));
	}
	return true;
}

void appendLocalVolumes(std::vector<std::string>& out)
{
	// One more than the platform is told of, so that every name ends.
	wchar_t name[nameRoom + 1] = {};
	const HANDLE search = FindFirstVolumeW(name, nameRoom);
	if (search == INVALID_HANDLE_VALUE)
	{
		VolumeLog::warn("Failed to list attached volumes: FindFirstVolume() failed with error code ", GetLastError());
		return;
	}
	const std::unique_ptr<void, SearchCloser> closer(search);
	do
	{
		const std::string volume = toUtf8(name);
		if (!appendMountPaths(volume, out))
		{
			VolumeLog::warn("Failed to enumerate mount points for volume '", volume, "'");
		}
	} while (FindNextVolumeW(search, name, nameRoom));
	if (const DWORD error = GetLastError(); error != ERROR_NO_MORE_FILES)
	{
		VolumeLog::warn("Failed to retrieve volume: FindNextVolume() failed with error code ", error);
	}
}

void appendNetworkDrives(std::vector<std::string>& out)
{
	const DWORD drives = GetLogicalDrives();
	for (int drive = 0; drive < 26; ++drive)
	{
		const std::string root = driveRoot(drive);
		if ((drives >> drive & 1) && GetDriveTypeW(toWide(root).c_str()) == DRIVE_REMOTE)
		{
			out.push_back(root);
		}
	}
}
} // namespace

std::size_t VolumeEventMonitor::listMountPoints(std::vector<std::string>& out) const
{
	out.clear();
	appendLocalVolumes(out);
	appendNetworkDrives(out);
	return out.size();
}
} // namespace Kiln
