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

TEST(LineHead, HasTheLocalTimeTheLevelsMarkAndTheName)
{
	Kiln::Logger logger;
	Kiln::LoggingComponent& component = *logger.component("a");
	component.setLevel(5);
	using Component = Kiln::LoggingComponent;
	std::set<std::string> stamps;
	while (stamps.size() < 3)
	{
		std::string marks;
		for (const Head head :
			{&Component::debug, &Component::info, &Component::warning, &Component::error, &Component::critical})
		{
			const std::string before = systemStamp();
			std::ostringstream stream;
			EXPECT_EQ(&(component.*head)(stream), &stream);
			const std::string stamp = stream.str().substr(0, before.size());
			ASSERT_LE(before, stamp);
			ASSERT_LE(stamp, systemStamp());
			stamps.insert(stamp);
			marks += stream.str().substr(before.size());
		}
		ASSERT_EQ(marks, "[DBG] a: [INF] a: [WRN] a: [ERR] a: [CRT] a: ");
	}
}
} // namespace
