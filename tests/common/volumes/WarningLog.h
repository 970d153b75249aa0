// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Awaited.h"

#include <kiln/LockGuard.h>
#include <kiln/Logger.h>
#include <regex>
#include <sstream>
#include <string>

/**
 * Takes the lines of the monitors' log component, from its making to the end of the last monitor made meanwhile. Must
 * outlive that monitor.
 */
class WarningLog
{
public:
	WarningLog() { Kiln::Logger::instance().component("VolumeEventMonitor")->setStream(stream_, lock_); }

	/** Should no monitor have been there to remove it. */
	~WarningLog() { Kiln::Logger::instance().removeComponent("VolumeEventMonitor"); }

	/** The messages of all lines so far, each with a newline; a line that is not a warning of the component as it is. */
	std::string text()
	{
		const Kiln::LockGuard guard(lock_);
		static const std::regex head(R"(\d\d-\d\d-\d\d \d\d:\d\d:\d\d \[WRN\] VolumeEventMonitor: )");
		return std::regex_replace(stream_.str(), head, "");
	}

	bool waitFor(const std::string& message)
	{
		return isTrueSoon([&] { return text().find(message + "\n") != std::string::npos; });
	}

private:
	Kiln::Lock lock_;
	std::ostringstream stream_;
};
