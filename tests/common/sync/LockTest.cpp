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
		constexpr int Rounds = 2000;
		Lock lock(kind);
		int count = 0;
		onThreads(Threads,
			[&](int)
			{
				for (int round = 0; round < Rounds; ++round)
				{
					const LockGuard guard(lock);
					const int before = count;
					if (round % 64 == 0)
					{
						std::this_thread::yield();
					}
					count = before + 1;
				}
			});
		EXPECT_EQ(count, Threads * Rounds);
	}
}

TEST(Lock, CriticalSectionIsFreeAfterAsManyReleasesAsAcquires)
{
	Lock lock;
	std::atomic<bool> isHeld{true};
	std::atomic<bool> cameTooEarly{false};
	lock.acquire();
	lock.acquire();
	std::jthread other(
		[&]
		{
			const LockGuard guard(lock);
			cameTooEarly = isHeld.load();
		});
	lock.release();
	for (int turn = 0; turn < 1000; ++turn)
	{
		std::this_thread::yield();
	}
	isHeld = false;
	lock.release();
	other.join();
	EXPECT_FALSE(cameTooEarly);
}

TEST(Lock, SemaphoreMayBeReleasedByAnotherThread)
{
	Lock lock(Lock::Kind::Semaphore);
	lock.acquire();
	std::jthread([&] { lock.release(); }).join();
	const LockGuard guard(lock);
}
} // namespace
