// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Also run natively, where races are seen.
#include "Threads.h"

#include <atomic>
#include <gtest/gtest.h>
#include <kiln/LockGuard.h>

namespace
{
using Kiln::Lock;
using Kiln::LockGuard;

TEST(Lock, OfEitherKindLetsOneThreadAtATimeOn)
{
	for (const Lock::Kind kind : {Lock::Kind::Semaphore, Lock::Kind::CriticalSection})
	{
		constexpr int Threads = 4;
		constexpr int Rounds = 20'000;
		Lock lock(kind);
		int count = 0;
		onThreads(Threads,
			[&](int)
			{
				for (int round = 0; round < Rounds; ++round)
				{
					const LockGuard guard(lock);
					++count;
				}
			});
		EXPECT_EQ(count, Threads * Rounds);
	}
}

TEST(Lock, CriticalSectionIsFreeAfterAsManyReleasesAsAcquires)
{
	Lock lock;
	std::atomic<bool> isPassed = false;
	lock.acquire();
	lock.acquire();
	std::jthread other(
		[&]
		{
			const LockGuard guard(lock);
			isPassed = true;
		});
	lock.release();
	std::this_thread::sleep_for(std::chrono::milliseconds(20));
	EXPECT_FALSE(isPassed);
	lock.release();
}

} // namespace
