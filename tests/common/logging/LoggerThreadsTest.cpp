// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Also run natively, where races are seen.
#include "LogLines.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <iostream>
#include <kiln/Logger.h>
#include <latch>
#include <string_view>
#include <thread>

namespace
{
/** A writer's line: one letter, repeated as often as the line's number says, so that a mixed or cut line is seen. */
std::string text(int writer, int number)
{
	return std::to_string(number) + " " +
		   std::string(static_cast<std::size_t>(1 + number % 97), static_cast<char>('a' + writer));
}

/** Expects all lines of all writers, each writer's in their order. */
void expectAllLines(const std::vector<std::string>& lines, const std::vector<int>& counts)
{
	std::vector<int> next(counts.size(), 0);
	for (const std::string& line : lines)
	{
		const auto writer = static_cast<std::size_t>(line.back() - 'a');
		ASSERT_LT(writer, next.size()) << line;
		const std::string wanted = ": " + text(static_cast<int>(writer), next[writer]++);
		ASSERT_TRUE(line.ends_with(wanted)) << line << "\nends not with\n" << wanted;
		ASSERT_EQ(line.find(": "), line.size() - wanted.size()) << line;
	}
	EXPECT_EQ(next, counts);
}

template <class Work>
void onThreads(int count, Work work)
{
	std::vector<std::jthread> threads;
	for (int number = 0; number < count; ++number)
	{
		threads.emplace_back(work, number);
	}
}

class Console
{
public:
	explicit Console(std::ostream& console) : console_(console) { console_.rdbuf(text_.rdbuf()); }
	~Console() { console_.rdbuf(before_); }
	Console(const Console&) = delete;
	Console& operator=(const Console&) = delete;

	std::string text() const { return text_.str(); }

private:
	std::ostringstream text_;
	std::ostream& console_;
	std::streambuf* const before_ = console_.rdbuf();
};

TEST(LoggerThreads, OfOneFileLoseAndMixNothing)
{
	constexpr int Threads = 16;
	constexpr int Lines = 10'000;
	const TemporaryFolder folder;
	// Made before, so that the threads do nothing but log.
	std::vector<std::vector<std::string>> texts(Threads);
	for (int thread = 0; thread < Threads; ++thread)
	{
		for (int line = 0; line < Lines; ++line)
		{
			texts[static_cast<std::size_t>(thread)].push_back(text(thread, line));
		}
	}
	{
		Kiln::Logger logger;
		logger.setDefaultLogFile(folder / "a.log");
		onThreads(Threads,
			[&](int thread)
			{
				const std::string name = "writer " + std::to_string(thread / 2);
				for (const std::string& line : texts[static_cast<std::size_t>(thread)])
				{
					warn(*logger.component(name), line);
				}
			});
	}
	expectAllLines(linesOf(folder / "a.log"), std::vector<int>(Threads, Lines));
}

TEST(LoggerThreads, OfTheConsoleShareIt)
{
	constexpr int Threads = 4;
	constexpr int Lines = 500;
	Kiln::Logger logger;
	const Console out(std::cout);
	std::streambuf* const before = std::cerr.rdbuf(std::cout.rdbuf());
	onThreads(Threads,
		[&](int thread)
		{
			const std::string name = "writer " + std::to_string(thread);
			thread % 2 ? logger.redirectToConsole(name) : logger.redirectToErrorConsole(name);
			for (int line = 0; line < Lines; ++line)
			{
				warn(*logger.component(name), text(thread, line));
			}
		});
	std::cerr.rdbuf(before);
	expectAllLines(linesOf(std::istringstream(out.text())), std::vector<int>(Threads, Lines));
}

TEST(LoggerThreads, MayLogWhileOthersConfigure)
{
	constexpr int Writers = 3;
	constexpr int Lines = 2000;
	const TemporaryFolder folder;
	std::size_t consoleLines = 0;
	{
		Kiln::Logger logger;
		logger.setDefaultLogFile(folder / "a.log");
		Kiln::LoggingComponent& shared = *logger.component("shared");
		std::ofstream file = Kiln::openOutput(folder / "b.log");
		Kiln::Lock fileLock;
		const Console out(std::cout);
		std::atomic<int> writing = Writers;
		onThreads(Writers + 1,
			[&](int thread)
			{
				if (thread < Writers)
				{
					for (int line = 0; line < Lines; ++line)
					{
						warn(shared, text(thread, line));
					}
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
		consoleLines = linesOf(std::istringstream(out.text())).size();
		shared.setStream(nullptr);
	}
	EXPECT_EQ(linesOf(folder / "a.log").size() + linesOf(folder / "b.log").size() + consoleLines,
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
