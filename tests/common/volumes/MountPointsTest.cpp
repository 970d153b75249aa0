// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "FakeComputer.h"
#include "ImportOverride.h"
#include "WarningLog.h"

#include <gtest/gtest.h>
#include <kiln/VolumeEventMonitor.h>

namespace
{
using Texts = std::vector<std::string>;

const FakeVolume system{.paths = {L"C:\\", L"D:\\mounted \u00FC\\"}};
const FakeVolume stick{.paths = {L"E:\\"}, .driveType = DRIVE_REMOVABLE};
const FakeVolume unmounted{.paths = {}};
const FakeVolume share{.paths = {L"Z:\\"}, .driveType = DRIVE_REMOTE};

/** What is listed, and what is logged. */
struct Listing
{
	Listing()
	{
		WarningLog log;
		{
			const Kiln::VolumeEventMonitor monitor;
			const std::size_t count = monitor.listMountPoints(paths);
			EXPECT_EQ(count, paths.size());
			warnings = log.text();
		}
	}

	Texts paths{"of before"};
	std::string warnings;
};

TEST(MountPoints, OfLocalVolumesThenNetworkDrives)
{
	const FakeComputer computer({share, unmounted, system, stick});
	const Listing listing;
	EXPECT_EQ(listing.paths, (Texts{"C:\\", "D:\\mounted \xC3\xBC\\", "E:\\", "Z:\\"}));
	EXPECT_EQ(listing.warnings, "");
}

TEST(MountPoints, WithoutASearchThereAreStillNetworkDrives)
{
	FakeComputer computer({system, share, stick});
	computer.fail("FindFirstVolumeW", ERROR_FILENAME_EXCED_RANGE);
	const Listing without;
	EXPECT_EQ(without.paths, Texts{"Z:\\"});
	EXPECT_EQ(without.warnings, "Failed to list attached volumes: FindFirstVolume() failed with error code 206\n");

	computer.fail("FindNextVolumeW", ERROR_INVALID_HANDLE);
	const Listing broken;
	EXPECT_EQ(broken.paths, (Texts{"C:\\", "D:\\mounted \xC3\xBC\\", "Z:\\"}));
	EXPECT_EQ(broken.warnings, "Failed to retrieve volume: FindNextVolume() failed with error code 6\n");

	computer.fail("GetLogicalDrives", ERROR_NOT_READY);
	EXPECT_EQ(Listing().paths, (Texts{"C:\\", "D:\\mounted \xC3\xBC\\", "E:\\"}));
}

TEST(MountPoints, AVolumeWhoseNameIsTooLongIsLoggedAndLeftOut)
{
	const std::wstring name = L"\\\\?\\Volume{\u00FC" + std::wstring(300, L'x');
	const FakeComputer computer(
		{FakeVolume{.paths = {L"E:\\"}, .name = name}, {.paths = {L"F:\\"}, .name = name.substr(0, 259)}});
	const Listing listing;
	EXPECT_EQ(listing.paths, Texts{"F:\\"});
	EXPECT_EQ(listing.warnings,
		"Failed to enumerate mount points for volume '\\\\?\\Volume{\xC3\xBC" + std::string(248, 'x') + "'\n");
}

TEST(MountPoints, AVolumeWhoseNameCannotBeConvertedIsLoggedAndLeftOut)
{
	const FakeComputer computer({system, stick});
	const ImportOverride convert("MultiByteToWideChar", &MultiByteToWideChar,
		[real = &MultiByteToWideChar](UINT page, DWORD flags, const char* in, int length, wchar_t* out, int room)
		{
			const bool isRefused = std::string_view(in, static_cast<std::size_t>(length)) == "\\\\?\\Volume{0}\\";
			return isRefused ? 0 : real(page, flags, in, length, out, room);
		});
	const Listing listing;
	EXPECT_EQ(listing.paths, Texts{"E:\\"});
	EXPECT_EQ(listing.warnings, "Failed to enumerate mount points for volume '\\\\?\\Volume{0}\\'\n");
}

/** Mount paths of 20 characters each. */
std::vector<std::wstring> paths(int count)
{
	std::vector<std::wstring> all;
	for (int number = 0; number < count; ++number)
	{
		all.push_back(L"C:\\" + std::to_wstring(number + 1000000) + L"-------\\\u00FC");
	}
	return all;
}

TEST(MountPoints, ListsMayBeLongAndGrowMeanwhile)
{
	FakeComputer computer({FakeVolume{.paths = paths(100)}});
	EXPECT_EQ(Listing().paths.size(), 100u);

	int attempts = 0;
	const ImportOverride names("GetVolumePathNamesForVolumeNameW", &GetVolumePathNamesForVolumeNameW,
		[&](const wchar_t*, wchar_t* out, DWORD room, DWORD* length) -> BOOL
		{
			++attempts;
			*length = room + 1;
			if (attempts < 20)
			{
				SetLastError(ERROR_MORE_DATA);
				return FALSE;
			}
			// The longest list that fits, without the NULs at its end.
			std::fill_n(out, room, L'x');
			return TRUE;
		});
	EXPECT_EQ(Listing().paths, Texts{std::string(261 + 19, 'x')});
	EXPECT_EQ(attempts, 20);
}

TEST(MountPoints, AVolumeWhosePathsCannotBeToldHasNone)
{
	FakeComputer computer({system, stick});
	computer.fail("GetVolumePathNamesForVolumeNameW", ERROR_FILE_NOT_FOUND);
	const Listing unknown;
	EXPECT_EQ(unknown.paths, Texts{"E:\\"});
	EXPECT_EQ(unknown.warnings, "");

	// "More" without a length to be had would be asked for ever.
	int attempts = 0;
	const ImportOverride names("GetVolumePathNamesForVolumeNameW", &GetVolumePathNamesForVolumeNameW,
		[&](const wchar_t*, wchar_t*, DWORD, DWORD* length) -> BOOL
		{
			++attempts;
			*length = 0;
			SetLastError(ERROR_MORE_DATA);
			return FALSE;
		});
	EXPECT_EQ(Listing().paths, Texts());
	EXPECT_EQ(attempts, 2);
}
} // namespace
