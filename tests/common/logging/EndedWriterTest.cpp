// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a writer was told to be in the file is there, however the writer ends.
#include "ChildProcess.h"
#include "LogLines.h"
#include "TemporaryFolder.h"

#include <cstdlib>
#include <kiln/Logger.h>
#include <kiln/Unicode.h>
#include <random>
#include <windows.h>

namespace
{
constexpr const wchar_t* LogVariable = L"KILN_TEST_LOG";

/** How many calls returned in the writing process, in memory that both processes see; mapped until they end. */
volatile LONG* sharedCount()
{
	const HANDLE mapping =
		CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(LONG), L"KilnTestEndedWriter");
	return static_cast<LONG*>(MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(LONG)));
}

std::string line(LONG number)
{
	return std::to_string(number) + std::string(static_cast<std::size_t>(number) * 7 % 1500, 'x') + "|";
}

/** The writing process: this program, with the file in its environment. */
TEST(EndedWriter, Writes)
{
	const wchar_t* const file = _wgetenv(LogVariable);
	if (!file)
	{
		GTEST_SKIP() << "runs in a process of its own, see below";
	}
	Kiln::Logger logger;
	logger.setDefaultLogFile(Kiln::toUtf8(file));
	volatile LONG* const count = sharedCount();
	for (LONG number = 0;; ++number)
	{
		logger.component("writer")->log(line(number), 0);
		InterlockedIncrement(count);
	}
}

TEST(EndedWriter, LeavesTheLinesOfAllCallsThatReturned)
{
	const TemporaryFolder folder;
	volatile LONG* const count = sharedCount();
	ASSERT_TRUE(count);
	std::mt19937 random(20261114);
	wchar_t program[MAX_PATH];
	GetModuleFileNameW(nullptr, program, MAX_PATH);
	for (int round = 0; round < 50; ++round)
	{
		const std::string file = folder / (std::to_string(round) + ".log");
		SetEnvironmentVariableW(LogVariable, Kiln::toWide(file).c_str());
		*count = 0;
		const ChildProcess writer(
			L"\"" + std::wstring(program) + L"\" --gtest_brief=1 --gtest_filter=EndedWriter.Writes");
		while (*count == 0 && !writer.endsWithin(1))
		{
		}
		writer.endsWithin(random() % 20);
		writer.terminate(9);
		ASSERT_EQ(writer.exitCode(), 9u);

		const std::vector<std::string> lines = linesOf(file);
		const LONG returned = *count;
		ASSERT_GT(returned, 0);
		ASSERT_GE(lines.size(), static_cast<std::size_t>(returned));
		for (LONG number = 0; number < returned; ++number)
		{
			ASSERT_EQ(lines[static_cast<std::size_t>(number)], line(number));
		}
	}
	SetEnvironmentVariableW(LogVariable, nullptr);
}
} // namespace
