// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Also run natively, where races are seen.
#include "LogLines.h"
#include "TemporaryFolder.h"
#include "Threads.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <iostream>
#include <kiln/Logger.h>
#include <latch>

namespace
{
/** A writer's line: one letter, repeated as often as the line's number says, so that a mixed or cut line is seen. */
std::string text(int writer, int number)
{
	return std::to_string(number) + " " +
		   std::string(static_cast<std::size_t>(1 + number % 97), static_cast<char>('a' + writer));
}

void warnOften(Kiln::Logger& logger, const std::string& name, int writer, int count)
{
	for (int number = 0; number < count; ++number)
	{
		warn(*logger.component(name), text(writer, number));
	}
}

/** Expects all lines of all writers, each writer's in their order. */
void expectAllLines(const std::vector<std::string>& lines, int writers, int count)
{
	std::vector<int> next(static_cast<std::size_t>(writers), 0);
	for (const std::string& line : lines)
	{
		const auto writer = static_cast<std::size_t>(line.back() - 'a');
		ASSERT_LT(writer, next.size()) << line;
		const std::string wanted = ": " + text(static_cast<int>(writer), next[writer]++);
		ASSERT_TRUE(line.ends_with(wanted)) << line << "\nends not with\n" << wanted;
		ASSERT_EQ(line.find(": "), line.size() - wanted.size()) << line;
	}
	EXPECT_EQ(next, std::vector<int>(next.size(), count));
}

/** Takes what is written to the standard output and error. */
class Console
{
public:
	Console() : out_(std::cout.rdbuf(text_.rdbuf())), error_(std::cerr.rdbuf(text_.rdbuf())) {}
	~Console()
	{
		std::cout.rdbuf(out_);
		std::cerr.rdbuf(error_);
	}
	Console(const Console&) = delete;
	Console& operator=(const Console&) = delete;

	std::vector<std::string> lines() const { return linesOf(std::istringstream(text_.str())); }

private:
	std::ostringstream text_;
	std::streambuf* const out_;
	std::streambuf* const error_;
};

TEST(LoggerThreads, OfOneFileAndOfTheConsoleLoseAndMixNothing)
{
	constexpr int OfFile = 12;
	constexpr int OfConsole = 4;
	constexpr int Lines = 5'000;
	const TemporaryFolder folder;
	Kiln::Logger logger;
	logger.setDefaultLogFile(folder / "a.log");
	const Console console;
	onThreads(OfFile + OfConsole,
		[&](int thread)
		{
			const std::string name = "writer " + std::to_string(thread < OfFile ? thread / 2 : thread);
			if (thread >= OfFile)
			{
				thread % 2 ? logger.redirectToConsole(name) : logger.redirectToErrorConsole(name);
			}
			warnOften(logger, name, thread % OfFile, Lines);
		});
	expectAllLines(linesOf(folder / "a.log"), OfFile, Lines);
	expectAllLines(console.lines(), OfConsole, Lines);
}

TEST(LoggerThreads, MayLogWhileOthersConfigure)
{
	constexpr int Writers = 3;
	constexpr int Lines = 2000;
	const TemporaryFolder folder;
	Kiln::Logger logger;
	logger.setDefaultLogFile(folder / "a.log");
	Kiln::LoggingComponent& shared = *logger.component("shared");
	std::ofstream file = Kiln::openOutput(folder / "b.log");
	Kiln::Lock fileLock;
	const Console console;
	std::atomic<int> writing = Writers;
	onThreads(Writers + 1,
		[&](int thread)
		{
			if (thread < Writers)
			{
				warnOften(logger, "shared", thread, Lines);
				--writing;
				return;
			}
			for (std::uint32_t round = 0; writing > 0; ++round)
			{
				logger.redirectToConsole("shared");
				shared.setStream(file, fileLock);
				logger.setDefaultLevel(round % 3);
				logger.setComponentFile("other", folder / "c.log");
				logger.component("other")->setLevel(round);
				shared.setLevel(logger.defaultLevel());
				logger.removeComponent("other");
				std::this_thread::yield();
			}
		});
	shared.setStream(nullptr);
	EXPECT_EQ(linesOf(folder / "a.log").size() + linesOf(folder / "b.log").size() + console.lines().size(),
		std::size_t{Writers} * Lines);
}

TEST(LoggerThreads, GetOneInstance)
{
	constexpr int Threads = 8;
	std::vector<Kiln::Logger*> instances(Threads);
	std::latch start(Threads);
	onThreads(Threads,
		[&](int thread)
		{
			start.arrive_and_wait();
			instances[static_cast<std::size_t>(thread)] = &Kiln::Logger::instance();
		});
	EXPECT_EQ(std::ranges::count(instances, &Kiln::Logger::instance()), Threads);
}
} // namespace
