// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A monitor at work on a fake computer, and what is seen of it.
#pragma once

#include "FakeComputer.h"
#include "ImportOverride.h"
#include "Threads.h"

#include <algorithm>
#include <functional>
#include <kiln/LockGuard.h>
#include <kiln/Logger.h>
#include <kiln/VolumeEventMonitor.h>
#include <kiln/VolumeNotification.h>
#include <mutex>
#include <regex>
#include <shlobj.h>
#include <sstream>
#include <tuple>

using Texts = std::vector<std::string>;

/** Announces a change of a drive, as L"E:\\", by the shell's own means. */
inline void announce(LONG event, const std::wstring& path)
{
	SHChangeNotify(event, SHCNF_PATHW, path.c_str(), nullptr);
}

inline HWND monitorWindow()
{
	return FindWindowW(L"VolumeEventMonitor", nullptr);
}

/** Calls the hook before each call of a platform function, which is passed on. */
template <class Result, class... Arguments, class Hook>
auto hooked(const char* name, Result (*function)(Arguments...), Hook hook)
{
	return ImportOverride(name, function,
		[function, hook](Arguments... arguments)
		{
			hook();
			return function(arguments...);
		});
}

/** Counts the calls of a platform function. */
template <class Result, class... Arguments>
auto counted(const char* name, Result (*function)(Arguments...))
{
	return hooked(name, function, [] {});
}

/**
 * Has registrations with the shell include all that is below the folder: Wine announces to those alone what happens to the
 * folder's direct children. Everything else is passed on as it is.
 */
inline auto watchBelow()
{
	return ImportOverride("SHChangeNotifyRegister", &SHChangeNotifyRegister,
		[real = &SHChangeNotifyRegister](
			HWND window, int sources, LONG events, UINT message, int count, const SHChangeNotifyEntry* entry)
		{
			EXPECT_EQ(std::tuple(sources, events, message, count, entry->fRecursive),
				std::tuple(0x8003, 0x1E0, 0x4C8u, 1, FALSE));
			SHChangeNotifyEntry all = *entry;
			all.fRecursive = TRUE;
			return real(window, sources, events, message, 1, &all);
		});
}

/**
 * Takes the lines of the monitors' log component, from its making to the end of the last monitor made meanwhile. Must
 * outlive that monitor.
 */
class WarningLog
{
public:
	WarningLog()
	{
		component_.setStream(stream_, lock_);
		component_.setLevel(Kiln::LogLevel::warning);
	}

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
	Kiln::LoggingComponent& component_ = *Kiln::Logger::instance().component("VolumeEventMonitor");
};

/** Keeps what it is told, as "+E:" and "-E:", with the volume's name where it has one. */
class RecordingObserver : public Kiln::VolumeObserver
{
public:
	void volumeMounted(const Kiln::VolumeMountedNotification& notification) override { record("+", notification); }
	void volumeUnmounted(const Kiln::VolumeUnmountedNotification& notification) override { record("-", notification); }

	Texts events()
	{
		const std::lock_guard guard(mutex_);
		return events_;
	}

	/** Waits until so many events are there. */
	bool waitFor(std::size_t count)
	{
		return isTrueSoon([&] { return events().size() >= count; });
	}

	/** Called with each event, after it is kept. */
	std::function<void()> onEvent = [] {};

private:
	void record(const char* sign, const Kiln::VolumeNotification& notification)
	{
		const Kiln::VolumeInfo& volume = notification.volume;
		const bool isNamed = !volume.name.empty() && volume.name != "Untitled";
		{
			const std::lock_guard guard(mutex_);
			events_.push_back(sign + volume.mountPath + (isNamed ? " " + volume.name : ""));
		}
		onEvent();
	}

	std::mutex mutex_;
	Texts events_;
};

/** A monitor that listens and has reported the computer's volumes, of one path each. */
struct Listening
{
	explicit Listening(
		std::vector<FakeVolume> volumes, std::function<void()> onEvent = [] {})
		: computer(std::move(volumes))
	{
		observer.onEvent = std::move(onEvent);
		monitor->addObserver(&observer);
		EXPECT_EQ(observer.events(), Texts()) << "nothing before the start";
		EXPECT_TRUE(monitor->start());
		EXPECT_TRUE(observer.waitFor(computer.volumes.size()));
	}

	FakeComputer computer;
	const decltype(watchBelow()) watch = watchBelow();
	WarningLog log;
	RecordingObserver observer;
	std::unique_ptr<Kiln::VolumeEventMonitor> monitor = std::make_unique<Kiln::VolumeEventMonitor>();
};
