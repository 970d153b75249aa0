// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Run once more in zones of both hemispheres, so that in one of them today is summer.
#include "Failing.h"
#include "TemporaryFolder.h"
#include <cstdlib>
#include <ctime>
#include <kiln/FileInformation.h>
#include <windows.h>

namespace
{
constexpr std::int64_t january = 1'705'321'845; // 2024-01-15 12:30:45 UTC
constexpr std::int64_t july = 1'721'046'645;    // 2024-07-15 12:30:45 UTC
constexpr std::int64_t ticksPerSecond = 10'000'000;
constexpr std::int64_t epoch = 11'644'473'600; // in seconds since 1601

FILETIME fileTime(std::int64_t seconds)
{
	const auto ticks = static_cast<std::uint64_t>((seconds + epoch) * ticksPerSecond);
	return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

/** TZ is for Wine, which makes it the system's zone; the C library must not take it for its own. */
void leaveZoneToSystem()
{
	if (const char* zone = std::getenv("TZ"); zone && *zone)
	{
		TIME_ZONE_INFORMATION information;
		ASSERT_NE(GetTimeZoneInformation(&information), static_cast<DWORD>(TIME_ZONE_ID_UNKNOWN));
		ASSERT_NE(information.Bias, 0);
		_putenv("TZ=");
		_tzset();
	}
}

TEST(FileTimes, AreSecondsSinceTheEpochInBothSeasonsAndZeroBefore)
{
	leaveZoneToSystem();
	const TemporaryFolder folder;
	const std::string file = folder.file("\xC3\xBC");
	for (const std::string& path : {file, folder.path})
	{
		for (const std::int64_t time : {january, july, std::int64_t{1}, std::int64_t{4'102'444'800}, -july})
		{
			boost::filesystem::last_write_time(Kiln::widePath(path), time);
			EXPECT_EQ(Kiln::fileModificationTime(path), std::max(time, std::int64_t{0}));
		}
	}
	// Also hours that west of Greenwich belong to 1969, and a year that the C library does not know.
	constexpr std::int64_t early = 3'600;
	constexpr std::int64_t late = 253'402'000'000;
	for (const auto& [created, modified] : {std::pair(january, july), std::pair(early, late)})
	{
		const ImportOverride times("GetFileTime", &GetFileTime,
			[first = fileTime(created), last = fileTime(modified)](
				HANDLE, FILETIME* creation, FILETIME*, FILETIME* modification) -> BOOL
			{
				*creation = first;
				*modification = last;
				return TRUE;
			});
		EXPECT_EQ(Kiln::fileCreationTime(file), created);
		EXPECT_EQ(Kiln::fileModificationTime(file), modified);
	}
}
} // namespace
