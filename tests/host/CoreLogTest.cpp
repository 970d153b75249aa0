// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The log, and what a failed check leaves in it.
#include "EditorTest.h"
#include "Host/Log.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <thread>

using testing::AllOf;
using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;

DEFINE_LOG_CATEGORY_STATIC(LogSample, Log, All);

namespace
{
/** The same in this process and in the ones that die; not ASCII, and the folder is not there yet. */
std::filesystem::path LogPath()
{
	return std::filesystem::temp_directory_path() / L"tonalith-core-log" / L"\u00fc\u4e2d" / L"Sample.log";
}

bool OpenLog()
{
	return HostLog::OpenFile(LogPath().c_str());
}

/** The file's bytes. */
std::string ReadLog()
{
	std::ifstream File(LogPath(), std::ios::binary);
	return std::string(std::istreambuf_iterator<char>(File), {});
}

/** The file's bytes without times and frames. */
std::string ReadLines()
{
	return std::regex_replace(ReadLog(), std::regex("\\[\\d{4}\\.[^\\]]*\\]\\[ *\\d+\\]"), "");
}

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

class FCoreLog : public FEditorTest
{
protected:
	~FCoreLog() override
	{
		HostLog::CloseFile();
		std::error_code Ignored;
		std::filesystem::remove_all(LogPath().parent_path().parent_path(), Ignored);
	}
};

TEST_F(FCoreLog, FileLayout)
{
	ASSERT_TRUE(OpenLog());
	UE_LOG(LogSample, Verbose, TEXT("dropped"));
	GFrameCounter = 4007;
	UE_LOG(LogSample, Display, TEXT("%s, %d and %lld"), TEXT("\u00e4"), 5, 1LL << 40);
	UE_LOG(LogTemp, Log, TEXT("two\nlines, 100%%"));
	const std::string Text = ReadLog();
	const std::regex Layout(
		"\xEF\xBB\xBF\\[\\d{4}\\.\\d\\d\\.\\d\\d-\\d\\d\\.\\d\\d\\.\\d\\d:\\d{3}\\]\\[  7\\]LogSample: Display: "
		"\xC3\xA4, 5 and 1099511627776\r\n"
		"\\[[^\\]]*\\]\\[  7\\]LogTemp: two\r\nlines, 100%\r\n");
	EXPECT_TRUE(std::regex_match(Text, Layout)) << Text;
	EXPECT_FALSE(HostLog::OpenFile(LogPath().parent_path().c_str())) << "a folder";
}

TEST_F(FCoreLog, ThreadsDoNotMixTheirLines)
{
	ASSERT_TRUE(OpenLog());
	const auto Write = []
	{
		for (int32 Count = 0; Count < 100; ++Count)
		{
			UE_LOG(LogSample, Log, TEXT("first\nsecond"));
		}
	};
	{
		const std::jthread Threads[] = {std::jthread(Write), std::jthread(Write), std::jthread(Write)};
	}
	std::string Expected = "\xEF\xBB\xBF";
	for (int32 Count = 0; Count < 300; ++Count)
	{
		Expected += "LogSample: first\r\nsecond\r\n";
	}
	EXPECT_EQ(ReadLines(), Expected);
}

TEST_F(FCoreLog, FailedCheckEndsTheProcessAtOnce)
{
	const std::string Head =
		"Assertion failed: Value == 2 [File:" __FILE__ "] [Line: " + std::to_string(FailingLine) + "] ";
	EXPECT_EXIT(
		{
			OpenLog();
			std::atexit([] { std::fputs("at exit", stderr); });
			const FUnwindingShows Local;
			FailCheck(7);
		},
		ExitedWithCode(3),
		AllOf(HasSubstr(Head + "\nthe value is 7\nand odd\n"), Not(HasSubstr("unwound")), Not(HasSubstr("at exit"))));
	const std::string Line = "LogWindows: Error: ";
	EXPECT_EQ(ReadLines(), "\xEF\xBB\xBF" + Line + "appError called: " + Head + "\r\nthe value is 7\r\nand odd\r\n" +
							   Line + "=== Critical error: ===\r\n" + Line + "\r\n" + Line + Head + "\r\n" + Line +
							   "the value is 7\r\n" + Line + "and odd\r\n");
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
