// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The computer as it is: nothing is replaced but a flag.
#include "Shell.h"

#include "Awaited.h"

#include <kiln/VolumeEventMonitor.h>
#include <kiln/VolumeNotification.h>
#include <map>
#include <mutex>
#include <rapidjson/document.h>
#include <sstream>

namespace
{
/** Keeps the records as JSON texts, by event and mount path. */
class JsonObserver : public Kiln::VolumeObserver
{
public:
	void volumeMounted(const Kiln::VolumeMountedNotification& notification) override { keep("+", notification.volume); }
	void volumeUnmounted(const Kiln::VolumeUnmountedNotification& notification) override
	{
		keep("-", notification.volume);
	}

	std::string text(const std::string& event)
	{
		const std::lock_guard guard(mutex_);
		return texts_[event];
	}

	bool waitFor(const std::string& event)
	{
		return isTrueSoon([&] { return !text(event).empty(); });
	}

	void clear()
	{
		const std::lock_guard guard(mutex_);
		texts_.clear();
	}

private:
	void keep(const char* sign, const Kiln::VolumeInfo& volume)
	{
		std::ostringstream stream;
		EXPECT_TRUE(volume.serialize(stream));
		const std::lock_guard guard(mutex_);
		texts_[sign + volume.mountPath] = stream.str();
	}

	std::mutex mutex_;
	std::map<std::string, std::string> texts_;
};

TEST(GenuineShell, TellsAnObserverOfChanges)
{
	const auto watch = watchBelow();
	JsonObserver observer;
	Kiln::VolumeEventMonitor monitor;
	monitor.addObserver(&observer);
	ASSERT_TRUE(monitor.start());
	ASSERT_TRUE(observer.waitFor("+C:")) << "present at the start";
	const std::string atStart = observer.text("+C:");
	// Once the thread answers, it has reported all that is there.
	SendMessageW(monitorWindow(), WM_NULL, 0, 0);
	observer.clear();

	announce(SHCNE_DRIVEADD, L"C:\\");
	ASSERT_TRUE(observer.waitFor("+C:"));
	rapidjson::Document volume;
	volume.Parse(observer.text("+C:").c_str());
	ASSERT_TRUE(volume.IsObject());
	EXPECT_STREQ(volume["resource"].GetString(), "file://localhost/C:");
	EXPECT_GT(volume["capacity"].GetDouble(), 0);
	EXPECT_EQ(volume.MemberCount(), 12u);
	volume.Parse(atStart.c_str());
	EXPECT_STREQ(volume["resource"].GetString(), "file://localhost/C:");

	announce(SHCNE_MEDIAREMOVED, L"Q:\\");
	ASSERT_TRUE(observer.waitFor("-Q:"));
	volume.Parse(observer.text("-Q:").c_str());
	EXPECT_STREQ(volume["resource"].GetString(), "file://localhost/Q:");
	EXPECT_STREQ(volume["name"].GetString(), "");
}
} // namespace
