// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Notifications made and handed to observers.
#include "Subject.h"

#include <array>
#include <kiln/VolumeNotification.h>
#include <kiln/VolumeNotificationProvider.h>

namespace
{
constexpr int Notifications = 10'000;

class Counter : public Kiln::VolumeObserver
{
public:
	void volumeMounted(const Kiln::VolumeMountedNotification& notification) override
	{
		bytes += notification.volume.capacity;
	}
	void volumeUnmounted(const Kiln::VolumeUnmountedNotification&) override {}

	std::uint64_t bytes = 0;
};

void notify(benchmark::State& state)
{
	Kiln::VolumeNotificationProvider provider;
	std::array<Counter, 10> observers;
	for (Counter& observer : observers)
	{
		provider.addObserver(&observer);
	}
	Kiln::VolumeInfo volume;
	volume.name = "a label longer than a string's own room";
	volume.capacity = 1;
	for (auto _ : state)
	{
		for (int number = 0; number < Notifications; ++number)
		{
			provider.notifyVolumeMounted(Kiln::VolumeMountedNotification(volume));
		}
	}
	benchmark::DoNotOptimize(observers[0].bytes);
}

const bool isAdded = Bench::add({"10,000 notifications to 10 observers", notify});
} // namespace
