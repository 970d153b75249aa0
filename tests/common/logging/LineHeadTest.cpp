// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LogLines.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <kiln/Logger.h>
#include <set>
#include <windows.h>

namespace
{
using Head = std::ostream& (Kiln::LoggingComponent::*)(std::ostream&);

/** The stamp as the system's own local time has it. */
std::string systemStamp()
{
	SYSTEMTIME now;
	GetLocalTime(&now);
	char text[64];
	std::snprintf(text, sizeof text, "%02d-%02d-%02d %02d:%02d:%02d ", now.wYear % 100, now.wMonth, now.wDay, now.wHour,
		now.wMinute, now.wSecond);
	return text;
}

TEST(LineHead, HasTheLevelsMarkAndTheName)
{
	Kiln::Logger logger;
	Kiln::LoggingComponent& component = *logger.component("a");
	component.setLevel(5);
	using Component = Kiln::LoggingComponent;
	std::string marks;
	for (const Head head :
		{&Component::debug, &Component::info, &Component::warning, &Component::error, &Component::critical})
	{
		std::ostringstream stream;
		EXPECT_EQ(&(component.*head)(stream), &stream);
		marks += stream.str().substr(systemStamp().size());
	}
	EXPECT_EQ(marks, "[DBG] a: [INF] a: [WRN] a: [ERR] a: [CRT] a: ");
}

TEST(LineHead, FollowsTheLocalTime)
{
	Kiln::Logger logger;
	std::set<std::string> stamps;
	while (stamps.size() < 3)
	{
		const std::string before = systemStamp();
		std::ostringstream stream;
		logger.component("x")->info(stream);
		const std::string after = systemStamp();
		const std::string stamp = stream.str().substr(0, before.size());
		ASSERT_LE(before, stamp);
		ASSERT_LE(stamp, after);
		stamps.insert(stamp);
	}
}
} // namespace
