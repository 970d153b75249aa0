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

TEST(Instance, CanBeInstalledOnceBeforeFirstUse)
{
	const auto install = [](bool isUsed)
	{
		Logger own;
		Logger& first = isUsed ? Logger::instance() : own;
		const std::string error = errorOf([&] { Logger::setInstance(own); });
		finish(error + errorOf([&] { Logger::setInstance(own); }), &Logger::instance() == &first);
	};
	const std::string tooLate = "Logger has already been initialized with an class instance";
	EXPECT_EXIT(install(false), testing::ExitedWithCode(0), "^no error" + tooLate);
	EXPECT_EXIT(install(true), testing::ExitedWithCode(0), tooLate + tooLate);
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
