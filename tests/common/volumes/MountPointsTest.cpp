// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Monitoring.h"

namespace
{
const FakeVolume system{.paths = {L"C:\\", L"D:\\mounted \u00FC\\"}};
const FakeVolume stick{.paths = {L"E:\\"}, .driveType = DRIVE_REMOVABLE};
const FakeVolume share{.paths = {L"Z:\\"}, .driveType = DRIVE_REMOTE};

/** What is listed, and what is logged. */
struct Listing
{
	Listing()
	{
		WarningLog log;
		const Kiln::VolumeEventMonitor monitor;
		const std::size_t count = monitor.listMountPoints(paths);
		EXPECT_EQ(count, paths.size());
		warnings = log.text();
	}

	Texts paths{"of before"};
	std::string warnings;
};

TEST(MountPoints, OfLocalVolumesThenNetworkDrives)
{
	const std::wstring longName = L"\\\\?\\Volume{\u00FC" + std::wstring(300, L'x');
	struct Row
	{
		const char* failing;
		DWORD error;
		std::vector<FakeVolume> volumes;
		Texts paths;
		std::string warnings = {};
	};
	const Row rows[] = {
		{"nothing", 0, {share, {.paths = {}}, system, stick}, {"C:\\", "D:\\mounted \xC3\xBC\\", "E:\\", "Z:\\"}},
		{"FindFirstVolumeW", 206, {system, share, stick}, {"Z:\\"},
			"Failed to list attached volumes: FindFirstVolume() failed with error code 206\n"},
		{"FindNextVolumeW", 6, {system, share, stick}, {"C:\\", "D:\\mounted \xC3\xBC\\", "Z:\\"},
			"Failed to retrieve volume: FindNextVolume() failed with error code 6\n"},
		{"GetLogicalDrives", ERROR_NOT_READY, {share, stick}, {"E:\\"}},
		{"GetVolumePathNamesForVolumeNameW", ERROR_FILE_NOT_FOUND, {system, stick}, {"E:\\"}},
		{"a name that is too long", 0,
			{{.paths = {L"E:\\"}, .name = longName}, {.paths = {L"F:\\"}, .name = longName.substr(0, 259)}}, {"F:\\"},
			"Failed to enumerate mount points for volume '\\\\?\\Volume{\xC3\xBC" + std::string(248, 'x') + "'\n"},
	};
	for (const Row& row : rows)
	{
		SCOPED_TRACE(row.failing);
		FakeComputer computer(row.volumes);
		computer.fail(row.failing, row.error);
		const Listing listing;
		EXPECT_EQ(listing.paths, row.paths);
		EXPECT_EQ(listing.warnings, row.warnings);
	}
}

TEST(MountPoints, ListsMayGrowMeanwhile)
{
	const FakeComputer computer({system});
	int attempts = 0;
	const ImportOverride names("GetVolumePathNamesForVolumeNameW", &GetVolumePathNamesForVolumeNameW,
		[&](const wchar_t*, wchar_t* out, DWORD room, DWORD* length) -> BOOL
		{
			*length = room + 1;
			SetLastError(ERROR_MORE_DATA);
			// In the end the longest list that fits, without the NULs at its end.
			std::fill_n(out, room, L'x');
			return ++attempts == 20;
		});
	EXPECT_EQ(Listing().paths, Texts{std::string(261 + 19, 'x')});
	EXPECT_EQ(attempts, 20);
}

TEST(MountPoints, AListThatNeverFitsIsNotAskedForEver)
{
	const FakeComputer computer({system, stick});
	const ImportOverride names("GetVolumePathNamesForVolumeNameW", &GetVolumePathNamesForVolumeNameW,
		[](const wchar_t*, wchar_t*, DWORD, DWORD* length) -> BOOL
		{
			*length = 0;
			SetLastError(ERROR_MORE_DATA);
			return FALSE;
		});
	EXPECT_EQ(Listing().paths, Texts());
	EXPECT_EQ(names.calls(), 2);
}
} // namespace
