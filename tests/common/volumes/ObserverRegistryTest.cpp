// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Also run natively, where races are seen.
#include "Threads.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <kiln/VolumeNotification.h>
#include <kiln/VolumeNotificationProvider.h>
#include <memory>

namespace
{
using Kiln::VolumeMountedNotification;
using Kiln::VolumeUnmountedNotification;

/** Notes itself when it is told, in a list that is not atomic: the provider's lock orders all calls. */
class Counter : public Kiln::VolumeObserver
{
public:
	explicit Counter(std::vector<Counter*>& calls) : calls_(calls) {}

	void volumeMounted(const VolumeMountedNotification&) override { calls_.push_back(this); }
	void volumeUnmounted(const VolumeUnmountedNotification&) override { calls_.push_back(this); }

private:
	std::vector<Counter*>& calls_;
};

const VolumeMountedNotification mounted{Kiln::VolumeInfo()};
const VolumeUnmountedNotification unmounted{Kiln::VolumeInfo()};

TEST(ObserverRegistry, CallsEachObserverOnceInTheOrderOfAddresses)
{
	std::vector<Counter*> calls;
	Kiln::VolumeNotificationProvider provider;
	std::vector<Counter> counters(10, Counter(calls));
	for (const std::size_t number : {7u, 1u, 9u, 0u, 1u, 7u, 4u})
	{
		provider.addObserver(&counters[number]);
	}
	provider.addObserver(nullptr);
	provider.removeObserver(&counters[9]);
	provider.removeObserver(&counters[9]);
	provider.removeObserver(nullptr);
	provider.notifyVolumeMounted(mounted);
	provider.removeObserver(&counters[1]);
	provider.notifyVolumeUnmounted(unmounted);
	EXPECT_EQ(calls, (std::vector<Counter*>{&counters[0], &counters[1], &counters[4], &counters[7], &counters[0],
						 &counters[4], &counters[7]}));
}

TEST(ObserverRegistry, LosesNothingWhileObserversComeAndGo)
{
	constexpr int Notifications = 2000;
	constexpr int Threads = 4;
	std::vector<Counter*> calls;
	Kiln::VolumeNotificationProvider provider;
	Counter staying(calls);
	provider.addObserver(&staying);
	const auto visitors = repeatOnThreads(Threads,
		[&]
		{
			// Destroyed at once: a call after the removal would be one of a dead object.
			const auto visitor = std::make_unique<Counter>(calls);
			provider.addObserver(visitor.get());
			provider.removeObserver(visitor.get());
		});
	onThreads(Threads,
		[&](int)
		{
			for (int number = 0; number < Notifications; ++number)
			{
				provider.notifyVolumeMounted(mounted);
				provider.notifyVolumeUnmounted(unmounted);
			}
		});
	EXPECT_EQ(std::ranges::count(calls, &staying), 2 * Threads * Notifications);
}
} // namespace
