// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Runs each test in a process of its own: a process can have one editor session, and a fatal check ends it.
#include "ChildProcess.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
/** Of a test that passed: a process that Wine ends in the midst may leave the exit code 0. */
constexpr DWORD PassedCode = 42;

std::vector<std::string> AllTests()
{
	std::vector<std::string> Names;
	const testing::UnitTest& Program = *testing::UnitTest::GetInstance();
	for (int Suite = 0; Suite < Program.total_test_suite_count(); ++Suite)
	{
		const testing::TestSuite& Tests = *Program.GetTestSuite(Suite);
		for (int Test = 0; Test < Tests.total_test_count(); ++Test)
		{
			Names.push_back(std::string(Tests.name()) + "." + Tests.GetTestInfo(Test)->name());
		}
	}
	return Names;
}
} // namespace

int main(int Count, char** Arguments)
{
	testing::InitGoogleTest(&Count, Arguments);
	if (Count > 1 && std::string(Arguments[1]) == "--isolated")
	{
		return RUN_ALL_TESTS() == 0 ? static_cast<int>(PassedCode) : 1;
	}
	if (testing::GTEST_FLAG(filter) != "*" || testing::GTEST_FLAG(list_tests))
	{
		return RUN_ALL_TESTS();
	}
	int Failures = 0;
	const std::vector<std::string> Tests = AllTests();
	for (const std::string& Test : Tests)
	{
		const std::string CommandLine =
			"\"" + std::string(Arguments[0]) + "\" --isolated --gtest_brief=1 --gtest_filter=" + Test;
		const DWORD Code = ChildProcess(std::wstring(CommandLine.begin(), CommandLine.end())).exitCode();
		Failures += Code != PassedCode;
		std::printf("%s %s (exit code %lu)\n", Code == PassedCode ? "passed" : "FAILED", Test.c_str(), Code);
		std::fflush(stdout);
	}
	std::printf("%zu passed, %d failed\n", Tests.size() - static_cast<size_t>(Failures), Failures);
	return Failures == 0 && !Tests.empty() ? 0 : 1;
}
