// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "CoreMinimal.h"
#include "Host/Log.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <thread>

using testing::AllOf;
using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;

DEFINE_LOG_CATEGORY_STATIC(LogSample, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogQuiet, Warning, All);

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
	std::ostringstream Text;
	Text << File.rdbuf();
	return Text.str();
}

struct FCapture : FOutputDevice
{
	FCapture() { GLog->AddOutputDevice(this); }
	~FCapture() override { GLog->RemoveOutputDevice(this); }
	FCapture(const FCapture&) = delete;
	FCapture& operator=(const FCapture&) = delete;

	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Lines.push_back(TCHAR_TO_UTF8(*(Category.ToString() + TEXT("|") + ToString(Verbosity) + TEXT("|") + V)));
	}

	std::vector<std::string> Lines;
};

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

class FCoreLog : public testing::Test
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
	UE_LOG(LogSample, Display, TEXT("early %s, %d and %lld"), TEXT("\u00e4"), 5, 1LL << 40);
	HostLog::StartTimeStamps();
	GFrameCounter = 4007;
	UE_LOG(LogSample, Log, TEXT("no word for this verbosity"));
	UE_LOG(LogTemp, Warning, TEXT("two\nlines, 100%%"));
	const std::string Text = ReadLog();
	const std::regex Layout("\xEF\xBB\xBFLogSample: Display: early \xC3\xA4, 5 and 1099511627776\r\n"
							"(\\[\\d{4}\\.\\d\\d\\.\\d\\d-\\d\\d\\.\\d\\d\\.\\d\\d:\\d{3}\\]\\[  7\\])"
							"LogSample: no word for this verbosity\r\n"
							"\\[[^\\]]*\\]\\[  7\\]LogTemp: Warning: two\r\nlines, 100%\r\n");
	EXPECT_TRUE(std::regex_match(Text, Layout)) << Text;
	const std::time_t Now = std::time(nullptr);
	char Year[8];
	std::strftime(Year, sizeof Year, "[%Y.", std::gmtime(&Now));
	EXPECT_THAT(Text, HasSubstr(Year));
	EXPECT_FALSE(HostLog::OpenFile(FString(LogPath().parent_path().c_str()))) << "a folder";
}

TEST_F(FCoreLog, DevicesGetWhatTheCategoryLetsThroughAndStandardOutputOnlyDisplayAndWorse)
{
	FCapture Capture;
	testing::internal::CaptureStdout();
	HostLog::ShowOnStandardOutput(false);
	UE_LOG(LogSample, Verbose, TEXT("dropped"));
	UE_LOG(LogQuiet, Display, TEXT("dropped"));
	UE_LOG(LogQuiet, Warning, TEXT("w"));
	UE_LOG(LogSample, Log, TEXT("hidden"));
	UE_LOG(LogSample, Display, TEXT("d"));
	HostLog::ShowOnStandardOutput(true);
	UE_LOG(LogSample, Log, TEXT("shown"));
	EXPECT_EQ(
		testing::internal::GetCapturedStdout(), "LogQuiet: Warning: w\nLogSample: Display: d\nLogSample: shown\n");
	EXPECT_THAT(Capture.Lines,
		ElementsAre("LogQuiet|Warning|w", "LogSample|Log|hidden", "LogSample|Display|d", "LogSample|Log|shown"));
}

TEST_F(FCoreLog, ThreadsDoNotMixTheirLines)
{
	ASSERT_TRUE(OpenLog());
	std::vector<std::thread> Threads;
	for (int32 Thread = 0; Thread < 4; ++Thread)
	{
		Threads.emplace_back(
			[]
			{
				for (int32 Count = 0; Count < 100; ++Count)
				{
					UE_LOG(LogSample, Log, TEXT("first\nsecond"));
				}
			});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	std::string Expected = "\xEF\xBB\xBF";
	for (int32 Count = 0; Count < 400; ++Count)
	{
		Expected += "LogSample: first\r\nsecond\r\n";
	}
	EXPECT_EQ(ReadLog(), Expected);
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
	EXPECT_EQ(ReadLog(), "\xEF\xBB\xBF" + Line + "appError called: " + Head + "\r\nthe value is 7\r\nand odd\r\n" +
							 Line + "=== Critical error: ===\r\n" + Line + "\r\n" + Line + Head + "\r\n" + Line +
							 "the value is 7\r\n" + Line + "and odd\r\n");
}

TEST_F(FCoreLog, OtherFatalTexts)
{
	const FString* Section = nullptr;
	EXPECT_EXIT(check(Section), ExitedWithCode(3), HasSubstr("Assertion failed: Section [File:"));
	EXPECT_EXIT(verify(Section && *Section == TEXT("%s")), ExitedWithCode(3),
		HasSubstr("Assertion failed: Section && *Section == TEXT(\"%s\") [File:"));
	EXPECT_EXIT(UE_LOG(LogSample, Fatal, TEXT("no way on: %d"), 9), ExitedWithCode(3),
		HasSubstr("Fatal error: [File:" __FILE__ "] [Line: " + std::to_string(__LINE__ - 1) + "] \nno way on: 9\n"));
	check(!Section);
	checkSlow(Section);
}

TEST_F(FCoreLog, FailedEnsureReportsOncePerPlaceAndGoesOn)
{
	FCapture Capture;
	int32 Evaluated = 0;
	for (int32 Count = 0; Count < 3; ++Count)
	{
		EXPECT_FALSE(ensureMsgf(++Evaluated < 0, TEXT("message %d"), Count));
	}
	EXPECT_EQ(Evaluated, 3);
	EXPECT_TRUE(ensure(Evaluated == 3));
	ASSERT_EQ(Capture.Lines.size(), 4u);
	EXPECT_EQ(Capture.Lines[0], "LogOutputDevice|Error|=== Handled ensure: ===");
	EXPECT_THAT(Capture.Lines[2], HasSubstr("LogOutputDevice|Error|Ensure condition failed: ++Evaluated < 0 "));
	EXPECT_EQ(Capture.Lines[3], "LogOutputDevice|Error|message 0");
	EXPECT_FALSE(ensure(Evaluated == 4));
	EXPECT_GT(Capture.Lines.size(), 4u) << "another place reports too";
}
