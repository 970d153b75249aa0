// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <thread>
#include <vector>
#include <windows.h>

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

/**
 * Wakes one thread, which may begin to wait later. A standard semaphore may wake a waiter of another one instead where the
 * run-time library has no wait of the platform's to build on.
 */
class Signal
{
public:
	Signal() = default;
	~Signal() { CloseHandle(event_); }
	Signal(const Signal&) = delete;
	Signal& operator=(const Signal&) = delete;

	void send() { SetEvent(event_); }

	/** @return false when there was no signal for ten seconds */
	bool wait() { return WaitForSingleObject(event_, 10'000) == WAIT_OBJECT_0; }

private:
	const HANDLE event_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
};

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
