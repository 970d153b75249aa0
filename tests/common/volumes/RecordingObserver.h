// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Awaited.h"

#include <algorithm>
#include <functional>
#include <kiln/VolumeNotification.h>
#include <kiln/VolumeObserver.h>
#include <mutex>
#include <string>
#include <vector>

/** Keeps what it is told, as "+E:" and "-E:". */
class RecordingObserver : public Kiln::VolumeObserver
{
public:
	void volumeMounted(const Kiln::VolumeMountedNotification& notification) override { record("+", notification); }
	void volumeUnmounted(const Kiln::VolumeUnmountedNotification& notification) override { record("-", notification); }

	std::vector<std::string> events()
	{
		const std::lock_guard guard(mutex_);
		return events_;
	}

	/** Waits until so many events are there. */
	bool waitFor(std::size_t count)
	{
		return isTrueSoon([&] { return events().size() >= count; });
	}

	/** The record of the last event. */
	Kiln::VolumeInfo last()
	{
		const std::lock_guard guard(mutex_);
		return last_;
	}

	/** Called with each event, after it is kept. */
	std::function<void()> onEvent = [] {};

private:
	void record(const char* sign, const Kiln::VolumeNotification& notification)
	{
		{
			const std::lock_guard guard(mutex_);
			events_.push_back(sign + notification.volume.mountPath);
			last_ = notification.volume;
		}
		onEvent();
	}

	std::mutex mutex_;
	std::vector<std::string> events_;
	Kiln::VolumeInfo last_;
};
