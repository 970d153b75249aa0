// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Also run natively, where races are seen.
#include <atomic>
#include <gtest/gtest.h>
#include <kiln/LockGuard.h>
#include <stdexcept>
#include <thread>
#include <vector>

namespace
{
using Kiln::Lock;
using Kiln::LockGuard;

class LockOfBothKinds : public testing::TestWithParam<Lock::Kind>
{
protected:
	Lock lock{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Lock, LockOfBothKinds, testing::Values(Lock::Kind::Semaphore, Lock::Kind::CriticalSection),
	[](const auto& kind) { return kind.param == Lock::Kind::Semaphore ? "Semaphore" : "CriticalSection"; });

TEST_P(LockOfBothKinds, LetsOneThreadAtATimeOn)
{
	constexpr int Threads = 4;
	constexpr int Rounds = 2000;
	int count = 0;
	std::atomic<int> inside{0};
	std::atomic<int> crowd{0};
	{
		std::vector<std::jthread> threads;
		for (int thread = 0; thread < Threads; ++thread)
		{
			threads.emplace_back(
				[&]
				{
					for (int round = 0; round < Rounds; ++round)
					{
						const LockGuard guard(lock);
						crowd += ++inside > 1;
						const int before = count;
						if (round % 64 == 0)
						{
							std::this_thread::yield();
						}
						count = before + 1;
						--inside;
					}
				});
		}
	}
	EXPECT_EQ(count, Threads * Rounds);
	EXPECT_EQ(crowd, 0);
}

TEST_P(LockOfBothKinds, GuardLetsGoWhenAnExceptionLeaves)
{
	EXPECT_THROW(
		{
			const LockGuard guard(lock);
			throw std::runtime_error("inside");
		},
		std::runtime_error);
	bool wasFree = false;
	std::jthread(
		[&]
		{
			const LockGuard guard(lock);
			wasFree = true;
		})
		.join();
	EXPECT_TRUE(wasFree);
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
