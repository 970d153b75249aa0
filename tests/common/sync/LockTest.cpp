// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Also run natively, where races are seen.
#include "Threads.h"

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
					if (kind == Lock::Kind::CriticalSection)
					{
						// Taken twice, it is not free after one release.
						lock.acquire();
						lock.release();
					}
					++count;
				}
			});
		EXPECT_EQ(count, Threads * Rounds);
	}
}
} // namespace
