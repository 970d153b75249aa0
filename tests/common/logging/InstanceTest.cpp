// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The process-wide logger can be installed once, so each case runs in a process of its own.
#include "ImportOverride.h"
#include "SystemFunction.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <kiln/Logger.h>
#include <windows.h>

namespace
{
using Kiln::Logger;

std::string errorOf(const std::function<void()>& call)
{
	try
	{
		call();
		return "no error";
	}
	catch (const std::runtime_error& error)
	{
		return error.what();
	}
}

[[noreturn]] void finish(const std::string& text, bool isRight)
{
	std::fprintf(stderr, "%s\n", text.c_str());
	std::_Exit(isRight ? 0 : 1);
}

const std::string TooLate = "Logger has already been initialized with an class instance";

TEST(Instance, CanBeInstalledBeforeFirstUse)
{
	const auto install = []
	{
		Logger own;
		Logger::setInstance(own);
		const bool isOwn = &Logger::instance() == &own && Logger::instance().component("a") == own.component("a");
		finish(errorOf([&] { Logger::setInstance(own); }), isOwn);
	};
	EXPECT_EXIT(install(), testing::ExitedWithCode(0), TooLate);
}

TEST(Instance, CannotBeInstalledAfterFirstUse)
{
	const auto install = []
	{
		Logger& made = Logger::instance();
		Logger own;
		finish(errorOf([&] { Logger::setInstance(own); }), &Logger::instance() == &made);
	};
	EXPECT_EXIT(install(), testing::ExitedWithCode(0), TooLate);
}

TEST(Instance, OutOfMemoryIsToldAndTheNextCallTriesAgain)
{
	const auto fail = []
	{
		bool isOut = true;
		const std::string error = [&]
		{
			ImportOverride guarded(
				"VirtualAlloc", &VirtualAlloc, [](LPVOID, SIZE_T, DWORD, DWORD) -> LPVOID { return nullptr; });
			ImportOverride plain("malloc", &std::malloc,
				[&isOut, real = systemFunction(&std::malloc, "malloc")](std::size_t size)
				{ return std::exchange(isOut, false) ? nullptr : real(size); });
			return errorOf([] { Logger::instance(); });
		}();
		finish(error, !isOut && Logger::instance().component("a"));
	};
	EXPECT_EXIT(fail(), testing::ExitedWithCode(0), "^Could not construct logger");
}
} // namespace
