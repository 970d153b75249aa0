// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Also run natively, where races are seen.
#include "Awaited.h"

#include <gtest/gtest.h>
#include <kiln/VolumeNotification.h>
#include <kiln/VolumeNotificationProvider.h>
#include <memory>

namespace
{
using Kiln::VolumeMountedNotification;
using Kiln::VolumeUnmountedNotification;

/** Counts what it is told. The counts are not atomic: the provider's lock orders all calls. */
class Counter : public Kiln::VolumeObserver
{
public:
	void volumeMounted(const VolumeMountedNotification& notification) override
	{
		EXPECT_EQ(notification.volume.name, "a");
		++mounted;
		called.push_back(this);
	}
	void volumeUnmounted(const VolumeUnmountedNotification&) override { ++unmounted; }

	int mounted = 0;
	int unmounted = 0;

	/** All counters told of mounted volumes, in the order of the calls. */
	inline static std::vector<Counter*> called;
};

template <class Notification>
Notification notification()
{
	Kiln::VolumeInfo volume;
	volume.name = "a";
	return Notification(volume);
}

TEST(ObserverRegistry, CallsEachObserverOnceInTheOrderOfAddresses)
{
	Kiln::VolumeNotificationProvider provider;
	Counter counters[10];
	const auto mounted = notification<VolumeMountedNotification>();
	for (const int number : {7, 1, 9, 0, 1, 7, 4})
	{
		provider.addObserver(&counters[number]);
	}
	provider.addObserver(nullptr);
	provider.removeObserver(&counters[9]);
	provider.removeObserver(&counters[9]);
	provider.removeObserver(nullptr);
	Counter::called.clear();
	provider.notifyVolumeMounted(mounted);
	EXPECT_EQ(Counter::called, (std::vector<Counter*>{&counters[0], &counters[1], &counters[4], &counters[7]}));
	provider.notifyVolumeUnmounted(notification<VolumeUnmountedNotification>());
	EXPECT_EQ(counters[4].mounted, 1);
	EXPECT_EQ(counters[4].unmounted, 1);
	EXPECT_EQ(counters[9].mounted + counters[9].unmounted, 0);
}

TEST(ObserverRegistry, LosesNothingWhileObserversComeAndGo)
{
	constexpr int Notifications = 2000;
	constexpr int Threads = 4;
	Kiln::VolumeNotificationProvider provider;
	Counter staying;
	provider.addObserver(&staying);
	const auto visitors = repeatOnThreads(Threads,
		[&]
		{
			// Destroyed at once: a call after the removal would be one of a dead object.
			const auto visitor = std::make_unique<Counter>();
			provider.addObserver(visitor.get());
			provider.removeObserver(visitor.get());
		});
	std::vector<std::jthread> notifiers(Threads);
	for (std::jthread& notifier : notifiers)
	{
		notifier = std::jthread(
			[&]
			{
				for (int number = 0; number < Notifications; ++number)
				{
					provider.notifyVolumeMounted(notification<VolumeMountedNotification>());
					provider.notifyVolumeUnmounted(notification<VolumeUnmountedNotification>());
				}
			});
	}
	notifiers.clear();
	EXPECT_EQ(staying.mounted, Threads * Notifications);
	EXPECT_EQ(staying.unmounted, Threads * Notifications);
}
} // namespace
