// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "GuardHeap.h"
#include "Listening.h"
#include "Signal.h"

namespace
{
using Kiln::VolumeEventMonitor;

const FakeVolume system{.paths = {L"C:\\"}, .device = FakeDevice{"s"}};
const FakeVolume share{.paths = {L"N:\\"}, .driveType = DRIVE_REMOTE};
const FakeVolume other{.paths = {L"Z:\\"}, .driveType = DRIVE_REMOTE};

/** Where a thread waits until it is told to go on. */
class Gate
{
public:
	void pass()
	{
		isReached_.send();
		EXPECT_TRUE(isOpen_.wait());
	}

	bool waitUntilReached() { return isReached_.wait(); }
	void open() { isOpen_.send(); }

private:
	Signal isReached_;
	Signal isOpen_;
};

/** Starts a monitor whose thread comes to the gate, and destroys it while the thread is there. */
void destroyAt(Gate& gate)
{
	WarningLog log;
	auto monitor = std::make_unique<VolumeEventMonitor>();
	monitor->start();
	ASSERT_TRUE(gate.waitUntilReached());
	std::jthread destroyer([&] { monitor.reset(); });
	std::this_thread::sleep_for(std::chrono::milliseconds(20));
	gate.open();
	destroyer.join();
	EXPECT_EQ(log.text(), "");
	EXPECT_EQ(monitorWindow(), nullptr);
}

TEST(MonitorLifetime, TheThreadEndsWhereverItIs)
{
	const FakeComputer computer({system});
	Gate gate;
	const auto pass = [&] { gate.pass(); };
	{
		const auto com = hooked("CoInitializeEx", &CoInitializeEx, pass);
		destroyAt(gate);
	}
	{
		const auto window = hooked("CreateWindowExW", &CreateWindowExW, pass);
		destroyAt(gate);
	}
	{
		const auto folder = hooked("SHGetFolderLocation", &SHGetFolderLocation, pass);
		destroyAt(gate);
	}
	{
		const auto shell = hooked("SHChangeNotifyRegister", &SHChangeNotifyRegister, pass);
		const auto deregister = counted("SHChangeNotifyDeregister", &SHChangeNotifyDeregister);
		destroyAt(gate);
	}
}

TEST(MonitorLifetime, ADriveThatDoesNotAnswerDelaysTheEndByItsOwnQueryAlone)
{
	FakeComputer computer({system, share, other});
	Gate gate;
	computer.onQuery = [&](const std::wstring& root)
	{
		if (root == L"N:\\")
		{
			gate.pass();
		}
	};
	RecordingObserver observer;
	RecordingObserver late;
	auto monitor = std::make_unique<VolumeEventMonitor>();
	monitor->addObserver(&observer);
	monitor->start();
	ASSERT_TRUE(gate.waitUntilReached());
	monitor->addObserver(&late);
	EXPECT_EQ(monitor->mountedVolumes().size(), 1u);
	Events paths;
	EXPECT_EQ(monitor->listMountPoints(paths), 3u);
	monitor->removeObserver(&observer);

	Signal isEnding;
	const auto post = hooked("PostMessageW", &PostMessageW, [&] { isEnding.send(); });
	std::jthread destroyer([&] { monitor.reset(); });
	ASSERT_TRUE(isEnding.wait());
	gate.open();
	destroyer.join();
	EXPECT_EQ(computer.queries, 2) << "the last drive is not asked any more";
	EXPECT_EQ(observer.events(), Events{"+C:"});
	EXPECT_EQ(late.events(), Events{"+N:"});
}

TEST(MonitorLifetime, AFullMessageQueueDoesNotKeepTheThread)
{
	int refusals = 0;
	const ImportOverride post("PostMessageW", &PostMessageW,
		[&, real = &PostMessageW](HWND window, UINT message, WPARAM wide, LPARAM low) -> BOOL
		{
			if (message == WM_QUIT && refusals < 3)
			{
				++refusals;
				SetLastError(ERROR_NOT_ENOUGH_QUOTA);
				return FALSE;
			}
			return real(window, message, wide, low);
		});
	Listening listening({system});
	SendMessageW(monitorWindow(), WM_NULL, 0, 0);
	listening.monitor.reset();
	EXPECT_EQ(refusals, 3);
}

TEST(MonitorLifetime, EndsInTheMidstOfAStormWhileObserversComeAndGo)
{
	for (int round = 0; round < 5; ++round)
	{
		Listening listening({system, share});
		auto visitors = repeatOnThreads(2,
			[&]
			{
				RecordingObserver visitor;
				listening.monitor->addObserver(&visitor);
				listening.monitor->removeObserver(&visitor);
			});
		auto announcers = repeatOnThreads(3,
			[]
			{
				announce(SHCNE_DRIVEADD, L"C:\\");
				announce(SHCNE_DRIVEREMOVED, L"C:\\");
			});
		EXPECT_TRUE(listening.observer.waitFor(50));
		visitors.clear();
		listening.monitor.reset();
		const std::size_t count = listening.observer.events().size();
		announcers.clear();
		EXPECT_EQ(listening.observer.events().size(), count);
	}
}

TEST(MonitorLifetime, AnOverridingClassStopsFirst)
{
	class Counting : public VolumeEventMonitor
	{
	public:
		~Counting() override { stop(); }
		void notifyVolumeMounted(const Kiln::VolumeMountedNotification& notification) override
		{
			++count;
			VolumeEventMonitor::notifyVolumeMounted(notification);
		}
		bool startAgain()
		{
			stop();
			return start();
		}
		std::atomic<int> count = 0;
	};
	const FakeComputer computer({system, share});
	RecordingObserver observer;
	Counting monitor;
	monitor.addObserver(&observer);
	monitor.start();
	EXPECT_TRUE(observer.waitFor(2));
	EXPECT_EQ(monitor.count, 2);
	EXPECT_FALSE(monitor.startAgain()) << "an end is for good";
}

TEST(MonitorLifetime, ComIsLeftOnceOnTheThreadThatDestroys)
{
	std::vector<std::thread::id> threads;
	const ImportOverride com("CoUninitialize", &CoUninitialize, [&] { threads.push_back(std::this_thread::get_id()); });
	{
		const Listening listening({system});
		const VolumeEventMonitor neverStarted;
	}
	EXPECT_EQ(threads, std::vector<std::thread::id>(2, std::this_thread::get_id()));
}

TEST(MonitorLifetime, AThousandMonitorsLeaveNothingBehind)
{
	const FakeComputer computer({system, share});
	const auto window = counted("CreateWindowExW", &CreateWindowExW);
	const auto destroy = counted("DestroyWindow", &DestroyWindow);
	const auto registerClass = counted("RegisterClassExW", &RegisterClassExW);
	const auto unregisterClass = counted("UnregisterClassW", &UnregisterClassW);
	const auto watch = watchBelow();
	const ImportOverride deregister("SHChangeNotifyDeregister", &SHChangeNotifyDeregister,
		[real = &SHChangeNotifyDeregister](ULONG registration)
		{
			const BOOL isDone = real(registration);
			EXPECT_TRUE(isDone);
			return isDone;
		});
	constexpr int Cycles = 1000;
	constexpr int WarmUp = 50;
	DWORD handles = 0;
	long objects = 0;
	for (int cycle = 0; cycle < WarmUp + Cycles; ++cycle)
	{
		if (cycle == WarmUp)
		{
			GetProcessHandleCount(GetCurrentProcess(), &handles);
			objects = liveHeapObjects();
		}
		RecordingObserver observer;
		VolumeEventMonitor monitor;
		monitor.addObserver(&observer);
		monitor.start();
		// Every other one is destroyed wherever it is.
		ASSERT_TRUE(cycle % 2 || observer.waitFor(2));
	}
	DWORD handlesAfter = 0;
	GetProcessHandleCount(GetCurrentProcess(), &handlesAfter);
	EXPECT_LE(handlesAfter, handles);
	EXPECT_EQ(liveHeapObjects(), objects);
	EXPECT_EQ(window.calls(), destroy.calls());
	EXPECT_EQ(window.calls(), WarmUp + Cycles);
	EXPECT_EQ(registerClass.calls(), unregisterClass.calls());
	EXPECT_EQ(watch.calls(), deregister.calls());
}
} // namespace
