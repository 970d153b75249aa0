// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "FakeComputer.h"
#include "GuardHeap.h"
#include "RecordingObserver.h"
#include "Shell.h"
#include "WarningLog.h"

#include <kiln/VolumeEventMonitor.h>
#include <semaphore>

namespace
{
using Kiln::VolumeEventMonitor;
using Events = std::vector<std::string>;

const FakeVolume system{.paths = {L"C:\\"}, .device = FakeDevice{"s"}};
const FakeVolume share{.paths = {L"N:\\"}, .driveType = DRIVE_REMOTE};
const FakeVolume other{.paths = {L"Z:\\"}, .driveType = DRIVE_REMOTE};

/** Where a thread waits until it is told to go on. */
class Gate
{
public:
	void pass()
	{
		isReached_.release();
		isOpen_.acquire();
	}

	bool waitUntilReached() { return isReached_.try_acquire_for(std::chrono::seconds(10)); }
	void open() { isOpen_.release(); }

private:
	std::binary_semaphore isReached_{0};
	std::binary_semaphore isOpen_{0};
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
	{
		const ImportOverride com("CoInitializeEx", &CoInitializeEx,
			[&, real = &CoInitializeEx](void* reserved, DWORD mode)
			{
				gate.pass();
				return real(reserved, mode);
			});
		destroyAt(gate);
	}
	{
		const ImportOverride window("CreateWindowExW", &CreateWindowExW,
			[&, real = &CreateWindowExW](DWORD extended, const wchar_t* name, const wchar_t* title, DWORD style, int x,
				int y, int width, int height, HWND parent, HMENU menu, HINSTANCE module, void* parameter)
			{
				gate.pass();
				return real(extended, name, title, style, x, y, width, height, parent, menu, module, parameter);
			});
		destroyAt(gate);
	}
	{
		const ImportOverride folder("SHGetFolderLocation", &SHGetFolderLocation,
			[&, real = &SHGetFolderLocation](HWND window, int kind, HANDLE token, DWORD flags, PIDLIST_ABSOLUTE* item)
			{
				gate.pass();
				return real(window, kind, token, flags, item);
			});
		destroyAt(gate);
	}
	{
		const ImportOverride shell("SHChangeNotifyRegister", &SHChangeNotifyRegister,
			[&, real = &SHChangeNotifyRegister](
				HWND window, int sources, LONG events, UINT message, int count, const SHChangeNotifyEntry* entry)
			{
				gate.pass();
				return real(window, sources, events, message, count, entry);
			});
		const ImportOverride deregister("SHChangeNotifyDeregister", &SHChangeNotifyDeregister,
			[real = &SHChangeNotifyDeregister](ULONG registration) { return real(registration); });
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

	std::binary_semaphore isEnding{0};
	const ImportOverride post("PostMessageW", &PostMessageW,
		[&, real = &PostMessageW](HWND window, UINT message, WPARAM wide, LPARAM low)
		{
			isEnding.release();
			return real(window, message, wide, low);
		});
	std::jthread destroyer([&] { monitor.reset(); });
	isEnding.acquire();
	gate.open();
	destroyer.join();
	EXPECT_EQ(computer.queries, 2) << "the last drive is not asked any more";
	EXPECT_EQ(observer.events(), Events{"+C:"});
	EXPECT_EQ(late.events(), Events{"+N:"});
}

TEST(MonitorLifetime, AFullMessageQueueDoesNotKeepTheThread)
{
	const FakeComputer computer({system});
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
	RecordingObserver observer;
	auto monitor = std::make_unique<VolumeEventMonitor>();
	monitor->addObserver(&observer);
	monitor->start();
	ASSERT_TRUE(observer.waitFor(1));
	SendMessageW(monitorWindow(), WM_NULL, 0, 0);
	monitor.reset();
	EXPECT_EQ(refusals, 3);
}

TEST(MonitorLifetime, EndsInTheMidstOfAStormWhileObserversComeAndGo)
{
	const FakeComputer computer({system, share});
	const auto watch = watchBelow();
	for (int round = 0; round < 5; ++round)
	{
		RecordingObserver staying;
		auto monitor = std::make_unique<VolumeEventMonitor>();
		monitor->addObserver(&staying);
		monitor->start();
		ASSERT_TRUE(staying.waitFor(2));
		std::atomic<bool> isOver = false;
		std::atomic<bool> isDestroyed = false;
		std::vector<std::jthread> visitors;
		for (int thread = 0; thread < 2; ++thread)
		{
			visitors.emplace_back(
				[&]
				{
					while (!isOver)
					{
						RecordingObserver visitor;
						monitor->addObserver(&visitor);
						monitor->removeObserver(&visitor);
					}
				});
		}
		std::vector<std::jthread> announcers;
		for (int thread = 0; thread < 3; ++thread)
		{
			announcers.emplace_back(
				[&]
				{
					while (!isDestroyed)
					{
						announce(SHCNE_DRIVEADD, L"C:\\");
						announce(SHCNE_DRIVEREMOVED, L"C:\\");
					}
				});
		}
		EXPECT_TRUE(staying.waitFor(50));
		isOver = true;
		visitors.clear();
		monitor.reset();
		const std::size_t count = staying.events().size();
		isDestroyed = true;
		announcers.clear();
		EXPECT_EQ(staying.events().size(), count);
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
	const FakeComputer computer({system});
	RecordingObserver observer;
	{
		VolumeEventMonitor monitor;
		const VolumeEventMonitor neverStarted;
		monitor.addObserver(&observer);
		monitor.start();
		ASSERT_TRUE(observer.waitFor(1));
	}
	EXPECT_EQ(threads, std::vector<std::thread::id>(2, std::this_thread::get_id()));
}

TEST(MonitorLifetime, AThousandMonitorsLeaveNothingBehind)
{
	const FakeComputer computer({system, share});
	const ImportOverride window("CreateWindowExW", &CreateWindowExW,
		[real = &CreateWindowExW](auto... arguments) { return real(arguments...); });
	const ImportOverride destroy(
		"DestroyWindow", &DestroyWindow, [real = &DestroyWindow](HWND handle) { return real(handle); });
	const ImportOverride registerClass("RegisterClassExW", &RegisterClassExW,
		[real = &RegisterClassExW](const WNDCLASSEXW* description) { return real(description); });
	const ImportOverride unregisterClass("UnregisterClassW", &UnregisterClassW,
		[real = &UnregisterClassW](const wchar_t* name, HINSTANCE module)
		{
			const BOOL isDone = real(name, module);
			EXPECT_TRUE(isDone);
			return isDone;
		});
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
