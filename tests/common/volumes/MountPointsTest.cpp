// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Monitoring.h"

namespace
{
const FakeVolume mountedTwice{.paths = {L"C:\\", L"D:\\mounted \u00FC\\"}};
const FakeVolume removable{.paths = {L"E:\\"}, .driveType = DRIVE_REMOVABLE};
const FakeVolume remote{.paths = {L"Z:\\"}, .driveType = DRIVE_REMOTE};

/** What is listed, a space behind each, then what is logged. */
std::string listing()
{
	WarningLog log;
	const Kiln::VolumeEventMonitor monitor;
	Texts paths{"of before"};
	const std::size_t count = monitor.listMountPoints(paths);
	EXPECT_EQ(count, paths.size());
	std::string text;
	for (const std::string& path : paths)
	{
		text += path + " ";
	}
	return text + log.text();
}

TEST(MountPoints, OfLocalVolumesThenNetworkDrives)
{
	const std::wstring longName = L"\\\\?\\Volume{\u00FC" + std::wstring(300, L'x');
	struct Row
	{
		const char* failing;
		DWORD error;
		std::vector<FakeVolume> volumes;
		std::string listing;
	};
	const Row rows[] = {
		{"nothing", 0, {remote, {.paths = {}}, mountedTwice, removable}, "C:\\ D:\\mounted \xC3\xBC\\ E:\\ Z:\\ "},
		{"FindFirstVolumeW", 206, {mountedTwice, remote, removable},
			"Z:\\ Failed to list attached volumes: FindFirstVolume() failed with error code 206\n"},
		{"FindNextVolumeW", 6, {mountedTwice, remote, removable},
			"C:\\ D:\\mounted \xC3\xBC\\ Z:\\ Failed to retrieve volume: FindNextVolume() failed with error code 6\n"},
		{"GetLogicalDrives", ERROR_NOT_READY, {remote, removable}, "E:\\ "},
		{"GetVolumePathNamesForVolumeNameW", ERROR_FILE_NOT_FOUND, {mountedTwice, removable}, "E:\\ "},
		{"a name that is too long", 0,
			{{.paths = {L"E:\\"}, .name = longName}, {.paths = {L"F:\\"}, .name = longName.substr(0, 259)}},
			"F:\\ Failed to enumerate mount points for volume '\\\\?\\Volume{\xC3\xBC" + std::string(248, 'x') + "'\n"},
	};
	for (const Row& row : rows)
	{
		FakeComputer computer(row.volumes);
		computer.fail(row.failing, row.error);
		EXPECT_EQ(listing(), row.listing) << row.failing;
	}
}

TEST(MountPoints, ListsMayGrowMeanwhileButAreNotAskedForEver)
{
	const FakeComputer computer({mountedTwice});
	for (const bool isGrowing : {true, false})
	{
		int attempts = 0;
		const ImportOverride names("GetVolumePathNamesForVolumeNameW", &GetVolumePathNamesForVolumeNameW,
			[&](const wchar_t*, wchar_t* out, DWORD room, DWORD* length) -> BOOL
			{
				*length = isGrowing ? room + 1 : room;
				SetLastError(ERROR_MORE_DATA);
				// In the end the longest list that fits, without the NULs at its end.
				std::fill_n(out, room, L'x');
				return ++attempts == 20;
			});
		EXPECT_EQ(listing(), isGrowing ? std::string(261 + 19, 'x') + " " : "");
		EXPECT_EQ(attempts, isGrowing ? 20 : 1);
	}
}
} // namespace
