// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The process-wide logger can be installed once, so each case runs in a process of its own.
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <kiln/Logger.h>

namespace
{
using Kiln::Logger;

TEST(Instance, CanBeInstalledOnceBeforeFirstUse)
{
	const auto installTwice = [](bool isUsed)
	{
		Logger own;
		Logger& first = isUsed ? Logger::instance() : own;
		for (int attempt = 0; attempt < 2; ++attempt)
		{
			try
			{
				Logger::setInstance(own);
				std::fputs("installed, ", stderr);
			}
			catch (const std::runtime_error& error)
			{
				std::fputs(error.what(), stderr);
			}
		}
		std::_Exit(&Logger::instance() == &first ? 0 : 1);
	};
	const std::string tooLate = "Logger has already been initialized with an class instance";
	EXPECT_EXIT(installTwice(false), testing::ExitedWithCode(0), "^installed, " + tooLate);
	EXPECT_EXIT(installTwice(true), testing::ExitedWithCode(0), tooLate + tooLate);
}
} // namespace
