// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The log, and what a failed check leaves in it.
#include "EditorTest.h"
#include "Logging/LogMacros.h"

#include <cstdlib>
#include <thread>

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

DEFINE_LOG_CATEGORY_STATIC(LogSample, Log, All);

namespace
{
constexpr int32 FailingLine = __LINE__ + 3;
void FailCheck(int32 Value)
{
	checkf(Value == 2, TEXT("the value is %d\nand %s"), Value, TEXT("odd"));
}

struct FUnwindingShows
{
	~FUnwindingShows() { std::fputs("unwound", stderr); }
};
} // namespace

using FCoreLog = FEditorTest;

TEST_F(FCoreLog, LinesComeWholeFromAnyThread)
{
	const auto Write = []
	{
		for (int32 Count = 0; Count < 100; ++Count)
		{
			UE_LOG(LogSample, Verbose, TEXT("dropped"));
			UE_LOG(LogSample, Display, TEXT("%s, %d and %lld\n100%%"), TEXT("\u00e4"), 5, 1LL << 40);
		}
	};
	{
		const std::jthread Threads[] = {std::jthread(Write), std::jthread(Write), std::jthread(Write)};
	}
	EXPECT_THAT(TakeLog("LogSample"), AllOf(SizeIs(300), Each("Display: \xC3\xA4, 5 and 1099511627776\n100%")));
}

TEST_F(FCoreLog, FailedCheckEndsTheProcessAtOnce)
{
	const std::string Head =
		"Assertion failed: Value == 2 [File:" __FILE__ "] [Line: " + std::to_string(FailingLine) + "] ";
	EXPECT_EXIT(
		{
			std::atexit([] { std::fputs("at exit", stderr); });
			const FUnwindingShows Local;
			FailCheck(7);
		},
		ExitedWithCode(3),
		AllOf(HasSubstr(Head + "\nthe value is 7\nand odd\n"), Not(HasSubstr("unwound")), Not(HasSubstr("at exit"))));
	const FString* Section = nullptr;
	EXPECT_EXIT(check(Section && *Section == TEXT("%s")), ExitedWithCode(3),
		HasSubstr("Assertion failed: Section && *Section == TEXT(\"%s\") [File:"));
}

TEST_F(FCoreLog, FailedEnsureIsReportedOnceAndGoesOn)
{
	for (int32 Times = 0; Times < 2; ++Times)
	{
		TArray<int32> Array = {1, 2, 3};
		Array.RemoveAt(2); // leaves room, so that nothing moves
		for (const int32 Element : Array)
		{
			if (Element == 1)
			{
				Array.Add(Element);
			}
		}
	}
	EXPECT_THAT(TakeLog("LogOutputDevice"), ElementsAre("Error: === Handled ensure: ===", "Error: ",
												HasSubstr("Error: Ensure condition failed: CurrentNum == InitialNum "),
												"Error: Array has changed during ranged-for iteration!"));
	EXPECT_FALSE(ensureMsgf(false, TEXT("here")));
	EXPECT_EQ(TakeLog("LogOutputDevice").size(), 4u) << "another place reports too";
}
