// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <thread>
#include <vector>

/** Waits for what another thread does. @return false when it did not within ten seconds */
template <class Condition>
bool isTrueSoon(Condition condition)
{
	for (int attempt = 0; attempt < 5000; ++attempt)
	{
		if (condition())
		{
			return true;
		}
		std::this_thread::sleep_for(std::chrono::milliseconds(2));
	}
	return condition();
}

/** Runs the work on so many threads, each with its number, and waits for their ends. */
template <class Work>
void onThreads(int count, Work work)
{
	std::vector<std::jthread> threads;
	for (int number = 0; number < count; ++number)
	{
		threads.emplace_back(work, number);
	}
}

/** Threads that repeat the work until they are destroyed. */
template <class Work>
std::vector<std::jthread> repeatOnThreads(int count, Work work)
{
	std::vector<std::jthread> threads;
	while (count-- > 0)
	{
		threads.emplace_back(
			[work](const std::stop_token& end)
			{
				while (!end.stop_requested())
				{
					work();
				}
			});
	}
	return threads;
}
