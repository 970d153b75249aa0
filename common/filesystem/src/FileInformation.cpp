// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Handle.h"
#include <algorithm>
#include <boost/filesystem.hpp>
#include <cstdio>
#include <ctime>
#include <kiln/FileInformation.h>
#include <kiln/Paths.h>

namespace Kiln
{
namespace
{
/** By the platform's count alone. */
std::int64_t countedSeconds(const FILETIME& time)
{
	constexpr std::int64_t ticksPerSecond = 10'000'000;
	constexpr std::int64_t epoch = 11'644'473'600; // in seconds since 1601
	const std::uint64_t ticks = std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
	return static_cast<std::int64_t>(ticks / ticksPerSecond) - epoch;
}

/**
 * The platform makes local times with the offset of today, not of the date. Telling the C library which of the two it was
 * makes it take off the same offset. What has no local time that the C library knows, in the epoch's first hours and a
 * thousand years later, is counted.
 */
std::int64_t secondsSinceEpoch(const FILETIME& time)
{
	FILETIME local;
	SYSTEMTIME parts;
	if (!FileTimeToLocalFileTime(&time, &local) || !FileTimeToSystemTime(&local, &parts))
	{
		return 0;
	}
	TIME_ZONE_INFORMATION zone;
	std::tm calendar{};
	calendar.tm_year = parts.wYear - 1900;
	calendar.tm_mon = parts.wMonth - 1;
	calendar.tm_mday = parts.wDay;
	calendar.tm_hour = parts.wHour;
	calendar.tm_min = parts.wMinute;
	calendar.tm_sec = parts.wSecond;
	calendar.tm_isdst = GetTimeZoneInformation(&zone) == TIME_ZONE_ID_DAYLIGHT;
	const std::time_t seconds = std::mktime(&calendar);
	return std::max<std::int64_t>(seconds == -1 ? countedSeconds(time) : seconds, 0);
}

struct FileTimes
{
	FILETIME created{};
	FILETIME modified{};
};

/** Zeros, which lie centuries before the epoch, when the file cannot be opened. */
FileTimes timesOf(const std::string& path)
{
	FileTimes times;
	// Folders open with the flag for backups only.
	if (const Handle file = openExisting(widePath(path), FILE_READ_ATTRIBUTES, FILE_FLAG_BACKUP_SEMANTICS))
	{
		GetFileTime(file.get(), &times.created, nullptr, &times.modified);
	}
	return times;
}
} // namespace

std::uint64_t fileSize(const std::string& path)
{
	boost::system::error_code error;
	const boost::uintmax_t size = boost::filesystem::file_size(widePath(path), error);
	return error ? 0 : size;
}

std::string formatFileSize(std::uint64_t bytes)
{
	static constexpr const char* units[] = {"B", "kB", "MB", "GB", "TB", "PB", "EB", "ZB", "YB"};
	double value = static_cast<double>(bytes);
	std::size_t unit = 0;
	while (value > 1000.0)
	{
		value /= 1000.0;
		++unit;
	}
	char text[99];
	std::snprintf(text, sizeof text, "%.*f %s", unit == 0 ? 0 : 1, value, units[unit]);
	return text;
}

std::string formatFileSize(const std::string& path)
{
	return formatFileSize(fileSize(path));
}

std::int64_t fileModificationTime(const std::string& path)
{
	return secondsSinceEpoch(timesOf(path).modified);
}

std::int64_t fileCreationTime(const std::string& path)
{
	return secondsSinceEpoch(timesOf(path).created);
}
} // namespace Kiln
