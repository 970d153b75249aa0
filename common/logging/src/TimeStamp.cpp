// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TimeStamp.h"

#include <chrono>
#include <cstddef>
#include <ctime>

namespace Kiln
{
namespace
{
struct Stamp
{
	std::time_t second = -1;
	std::size_t length = 0;
	char text[100] = {};
};
} // namespace

std::string_view timeStamp()
{
	// The conversion to local time costs more than all the rest of a line's head, so once a second has to do.
	thread_local Stamp stamp;
	const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
	if (now != stamp.second)
	{
		std::tm local;
		const bool isKnown = localtime_s(&local, &now) == 0;
		stamp.length = isKnown ? std::strftime(stamp.text, sizeof stamp.text, "%y-%m-%d %H:%M:%S ", &local) : 0;
		stamp.second = now;
	}
	return {stamp.text, stamp.length};
}
} // namespace Kiln
