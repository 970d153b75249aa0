// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "GuardHeap.h"
#include "ImportOverride.h"
#include "LogLines.h"
#include "SystemFunction.h"
#include "TemporaryFolder.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <kiln/Logger.h>

namespace
{
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

class LoggerTest : public testing::Test
{
protected:
	Kiln::LoggingComponent& component(const std::string& name) { return *logger.component(name); }

	TemporaryFolder folder;
	Kiln::Logger logger;
};

TEST_F(LoggerTest, WritesLinesFromTheLevelOn)
{
	logger.setDefaultLogFile(folder / "a.log");
	EXPECT_EQ(logger.defaultLevel(), 0u);
	Kiln::LoggingComponent& all = component("all");
	logger.setDefaultLevel(Kiln::LogLevel::warning);
	Kiln::LoggingComponent& some = component("some");
	EXPECT_EQ(all.level(), 0u);
	for (std::uint32_t level = 0; level < 4; ++level)
	{
		all.log("all " + std::to_string(level), level);
		some.log("some " + std::to_string(level), level);
	}
	some.setLevel(0xFFFFFFFF);
	some.log("none", 0xFFFFFFFE);
	EXPECT_THAT(linesOf(folder / "a.log"), ElementsAre("all 0", "all 1", "all 2", "some 2", "all 3", "some 3"));
}

TEST_F(LoggerTest, OneNameIsOneComponent)
{
	const std::string first = folder / "first.log";
	const std::string second = folder / "second.log";
	logger.setDefaultLogFile(first);
	Kiln::LoggingComponent& one = component("one");
	one.setLevel(Kiln::LogLevel::error);
	logger.setComponentFile("one", second);
	EXPECT_EQ(logger.component("one"), &one);
	EXPECT_EQ(one.level(), Kiln::LogLevel::error);
	EXPECT_TRUE(one.name() == "one" && &one.logger() == &logger && logger.component("One") != &one);
	one.log("1", Kiln::LogLevel::error);
	EXPECT_TRUE(logger.removeComponent(&one));
	EXPECT_FALSE(logger.removeComponent("one"));
	EXPECT_FALSE(logger.removeComponent(nullptr));
	component("one").log("2", 0);
	EXPECT_THAT(linesOf(first), ElementsAre("1"));
	EXPECT_THAT(linesOf(second), ElementsAre("2"));
}

TEST_F(LoggerTest, SpellingsOfOnePathShareAFile)
{
	const std::string file = folder / "new/folders\\L\xC3\x84NGE \xE3\x81\x82.log";
	const std::string spellings[] = {
		file, folder / "new\\.\\x/..\\folders//l\xC3\xA4nge \xE3\x81\x82.LOG", file + "\\", file + "."};
	ImportOverride open("_wfopen", &_wfopen,
		[real = systemFunction(&_wfopen, "_wfopen")](const wchar_t* name, const wchar_t* mode)
		{ return real(name, mode); });
	for (const std::string& spelling : spellings)
	{
		logger.setComponentFile(spelling, spelling);
		component(spelling).log("1", 0);
	}
	EXPECT_EQ(open.calls(), 1);
	EXPECT_THAT(linesOf(file), ElementsAre("1", "1", "1", "1"));
}

TEST_F(LoggerTest, ExtendsFilesAndClosesThem)
{
	const std::string file = folder / "a.log";
	logger.setDefaultLogFile(file);
	component("a").log("1", 0);
	boost::system::error_code error;
	EXPECT_FALSE(boost::filesystem::remove(Kiln::widePath(file), error));
	logger.closeAllFiles();
	logger.closeAllFiles();
	EXPECT_TRUE(logger.removeComponent("a"));
	component("a").log("2", 0);
	logger.closeAllFiles();
	// Redirected before it wrote again, a component survives the end of its file.
	component("a").setStream(nullptr);
	component("a").log("3", 0);
	EXPECT_THAT(linesOf(file), ElementsAre("1", "2"));
	EXPECT_TRUE(boost::filesystem::remove(Kiln::widePath(file)));
}

TEST_F(LoggerTest, WithoutAFileItIsSilent)
{
	const std::string blocker = folder.file("file");
	const std::string blocked = blocker + "\\a.log";
	for (const std::string& path : {std::string(), folder.path, folder.path + "\\", blocked, folder / "a<b.log",
			 std::string("a\0b", 3), folder / std::string(32'000, 'a')})
	{
		logger.setComponentFile(path, path);
		warn(component(path), "lost");
		EXPECT_EQ(component(path).level(), 0u);
	}
	EXPECT_THAT(Kiln::listFiles(folder.path), testing::Optional(ElementsAre("file")));
	EXPECT_THAT(linesOf(blocker), IsEmpty());

	// The next component for the file tries again.
	boost::filesystem::remove(Kiln::widePath(blocker));
	logger.setComponentFile("next", blocked);
	component("next").log("found", 0);
	EXPECT_THAT(linesOf(blocked), ElementsAre("found"));
}

TEST_F(LoggerTest, NamesAndMessagesAreWrittenAsTheyAre)
{
	logger.setDefaultLogFile(folder / "a.log");
	warn(component(""), "");
	warn(component("a\nb"), "c\nd \xC3\xBC\x01");
	warn(component(std::string(600, 'n')), std::string(10'000, 'm'));
	EXPECT_THAT(
		linesOf(folder / "a.log"), ElementsAre(EndsWith(" [WRN] : "), EndsWith(" [WRN] a"), "b: c", "d \xC3\xBC\x01",
									   EndsWith(" [WRN] " + std::string(600, 'n') + ": " + std::string(10'000, 'm'))));
}

TEST_F(LoggerTest, RedirectsToTheConsole)
{
	logger.setDefaultLogFile(folder / "a.log");
	component("out").setLevel(Kiln::LogLevel::critical);
	logger.setDefaultLevel(Kiln::LogLevel::warning);
	testing::internal::CaptureStdout();
	testing::internal::CaptureStderr();
	logger.redirectToConsole("out");
	logger.redirectToErrorConsole("new");
	for (const char* name : {"out", "new"})
	{
		EXPECT_EQ(component(name).level(), Kiln::LogLevel::warning);
		component(name).log(name, Kiln::LogLevel::warning);
		component(name).log("below", Kiln::LogLevel::information);
	}
	EXPECT_EQ(testing::internal::GetCapturedStdout(), "out\n");
	EXPECT_EQ(testing::internal::GetCapturedStderr(), "new\n");
	EXPECT_THAT(linesOf(folder / "a.log"), IsEmpty());
}

TEST_F(LoggerTest, TakesStreams)
{
	std::ostringstream shared;
	Kiln::Lock lock;
	const long before = liveHeapObjects();
	Kiln::LoggingComponent& taker = component("taker");
	const long silent = liveHeapObjects();
	taker.setStream(std::make_unique<std::ostringstream>());
	taker.setStream(std::make_unique<std::ostringstream>());
	EXPECT_EQ(liveHeapObjects(), silent + 2) << "a stream and its lock";
	taker.setStream(shared, lock);
	EXPECT_EQ(liveHeapObjects(), silent);
	taker.log("1", 0);
	taker.setStream(nullptr);
	taker.log("2", 0);
	taker.setStream(std::make_unique<std::ostringstream>());
	logger.removeComponent("taker");
	EXPECT_EQ(liveHeapObjects(), before);
	EXPECT_EQ(shared.str(), "1\n");
}

TEST_F(LoggerTest, WhereMemoryRunsOutNoComponentIsHalfMade)
{
	logger.setDefaultLogFile(folder / "a.log");
	logger.setDefaultLevel(Kiln::LogLevel::warning);
	bool isOut = true;
	for (int rest = 0; isOut; ++rest)
	{
		isOut = false;
		const std::string end = " component that fails at allocation " + std::to_string(rest);
		const auto make = [&](const char* kind, const auto& call)
		{
			int left = rest;
			ImportOverride guarded(
				"VirtualAlloc", &VirtualAlloc, [](LPVOID, SIZE_T, DWORD, DWORD) -> LPVOID { return nullptr; });
			ImportOverride plain("malloc", &std::malloc,
				[&left, real = systemFunction(&std::malloc, "malloc")](std::size_t size)
				{ return left-- == 0 ? nullptr : real(size); });
			try
			{
				call(kind + end);
			}
			catch (const std::bad_alloc&)
			{
				isOut = true;
			}
		};
		make("a", [&](const std::string& name) { logger.component(name); });
		make("b", [&](const std::string& name) { logger.redirectToErrorConsole(name); });
		EXPECT_EQ(component("a" + end).level(), Kiln::LogLevel::warning);
		EXPECT_EQ(component("b" + end).level(), Kiln::LogLevel::warning);
		component("a" + end).log(isOut ? "" : "last", Kiln::LogLevel::warning);
	}
	EXPECT_EQ(linesOf(folder / "a.log").back(), "last");
}

} // namespace
