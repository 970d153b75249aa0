// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "FakeComputer.h"
#include "RecordingObserver.h"
#include "Shell.h"
#include "WarningLog.h"

#include <kiln/VolumeEventMonitor.h>

using Events = std::vector<std::string>;

/** A monitor that listens and has reported the computer's volumes, of one path each. */
struct Listening
{
	explicit Listening(
		std::vector<FakeVolume> volumes, std::function<void()> onEvent = [] {})
		: computer(std::move(volumes))
	{
		observer.onEvent = std::move(onEvent);
		monitor->addObserver(&observer);
		EXPECT_EQ(observer.events(), Events()) << "nothing before the start";
		EXPECT_TRUE(monitor->start());
		EXPECT_TRUE(observer.waitFor(computer.volumes.size()));
	}

	FakeComputer computer;
	const decltype(watchBelow()) watch = watchBelow();
	WarningLog log;
	RecordingObserver observer;
	std::unique_ptr<Kiln::VolumeEventMonitor> monitor = std::make_unique<Kiln::VolumeEventMonitor>();
};
