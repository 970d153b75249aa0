// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Monitoring.h"

namespace
{
using Kiln::VolumeEventMonitor;

const FakeVolume identified{.paths = {L"C:\\"}, .device = FakeDevice{"s"}};
const FakeVolume shareN{.paths = {L"N:\\"}, .driveType = DRIVE_REMOTE};
const FakeVolume shareZ{.paths = {L"Z:\\"}, .driveType = DRIVE_REMOTE};

/** Where a thread waits until it is told to go on. */
class Gate
{
public:
	void pass()
	{
		isReached_ = true;
		EXPECT_TRUE(isTrueSoon([&] { return isOpen_.load(); }));
	}

	bool waitUntilReached()
	{
		return isTrueSoon([&] { return isReached_.load(); });
	}

	void open() { isOpen_ = true; }

private:
	std::atomic<bool> isReached_ = false;
	std::atomic<bool> isOpen_ = false;
};

TEST(MonitorLifetime, TheThreadEndsWhereverItIs)
{
	const FakeComputer computer({identified});
	/** Destroys a monitor while its thread is in a function. */
	const auto destroyIn = [](const char* name, auto function)
	{
		Gate gate;
		const auto hook = hooked(name, function, [&] { gate.pass(); });
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
	};
	destroyIn("CoInitializeEx", &CoInitializeEx);
	destroyIn("CreateWindowExW", &CreateWindowExW);
	destroyIn("SHGetFolderLocation", &SHGetFolderLocation);
	destroyIn("SHChangeNotifyRegister", &SHChangeNotifyRegister);
}

TEST(MonitorLifetime, ADriveThatDoesNotAnswerDelaysTheEndByItsOwnQueryAlone)
{
	FakeComputer computer({identified, shareN, shareZ});
	Gate gate;
	computer.onQuery = [&](const std::wstring& root)
	{
		if (root == L"N:\\")
		{
			gate.pass();
		}
	};
	RecordingObserver observer;
	auto monitor = std::make_unique<VolumeEventMonitor>();
	monitor->start();
	ASSERT_TRUE(gate.waitUntilReached());
	EXPECT_EQ(monitor->mountedVolumes().size(), 1u);
	Texts paths;
	EXPECT_EQ(monitor->listMountPoints(paths), 3u);
	monitor->addObserver(&observer);

	const auto post = counted("PostMessageW", &PostMessageW);
	std::jthread destroyer([&] { monitor.reset(); });
	ASSERT_TRUE(isTrueSoon([&] { return post.calls() > 0; }));
	gate.open();
	destroyer.join();
	EXPECT_EQ(computer.queries, 2) << "the last drive is not asked any more";
	EXPECT_EQ(observer.events(), Texts{"+N:"});
}

TEST(MonitorLifetime, AFullMessageQueueDoesNotKeepTheThread)
{
	int refusals = 0;
	const ImportOverride post("PostMessageW", &PostMessageW,
		[&, real = &PostMessageW](HWND window, UINT message, WPARAM first, LPARAM second) -> BOOL
		{
			SetLastError(ERROR_NOT_ENOUGH_QUOTA);
			return ++refusals > 3 && real(window, message, first, second);
		});
	Listening listening({identified});
	SendMessageW(monitorWindow(), WM_NULL, 0, 0);
	listening.monitor.reset();
	EXPECT_EQ(refusals, 4);
}

TEST(MonitorLifetime, EndsInTheMidstOfAStormWhileObserversComeAndGo)
{
	for (int round = 0; round < 5; ++round)
	{
		Listening listening({identified, shareN});
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

TEST(MonitorLifetime, AThreadThatIsGoneIsNotWaitedFor)
{
	Listening listening({identified});
	const DWORD id = GetWindowThreadProcessId(monitorWindow(), nullptr);
	SendMessageW(monitorWindow(), WM_NULL, 0, 0);
	// As at the end of the process, whose other threads go first.
	const HANDLE thread = OpenThread(THREAD_TERMINATE | SYNCHRONIZE, FALSE, id);
	TerminateThread(thread, 0);
	WaitForSingleObject(thread, INFINITE);
	CloseHandle(thread);
	listening.monitor.reset();
	EXPECT_EQ(listening.log.text(), "");
}

TEST(MonitorLifetime, ComIsLeftOnceOnTheThreadThatDestroys)
{
	struct Stopping : VolumeEventMonitor
	{
		using VolumeEventMonitor::stop;
	};
	std::vector<std::thread::id> threads;
	const ImportOverride com("CoUninitialize", &CoUninitialize, [&] { threads.push_back(std::this_thread::get_id()); });
	{
		const Listening listening({identified});
		Stopping stopped;
		stopped.stop();
		EXPECT_FALSE(stopped.start()) << "it stops for good";
	}
	EXPECT_EQ(threads, std::vector<std::thread::id>(2, std::this_thread::get_id()));
}

} // namespace
