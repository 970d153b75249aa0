// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Monitoring.h"

#include <future>
#include <stdexcept>

namespace
{
using Kiln::VolumeEventMonitor;
using Kiln::VolumeInfo;

const FakeVolume system{.paths = {L"C:\\"}};
const FakeVolume stick{.paths = {L"E:\\"}, .label = L"stick", .device = FakeDevice{"s", true}};
const FakeVolume share{.paths = {L"Z:\\"}, .label = L"share", .driveType = DRIVE_REMOTE};

Texts mountPaths(const VolumeEventMonitor& monitor)
{
	Texts paths;
	for (const auto& volume : monitor.mountedVolumes())
	{
		paths.push_back(volume->mountPath);
	}
	return paths;
}

TEST(VolumeEventMonitor, ReportsWhatIsThereThenWhatChanges)
{
	Listening listening({system, stick, share});
	RecordingObserver& observer = listening.observer;
	const VolumeEventMonitor& monitor = *listening.monitor;
	EXPECT_FALSE(listening.monitor->start());
	EXPECT_EQ(mountPaths(monitor), Texts{"Z:"}) << "all have the same key";

	announce(SHCNE_DRIVEADD, L"E:\\");
	ASSERT_TRUE(observer.waitFor(4));
	EXPECT_EQ(mountPaths(monitor), Texts{"E:"});
	announce(SHCNE_DRIVEADD, L"Q:\\"); // cannot be read
	announce(SHCNE_MKDIR, L"C:\\x");   // not of interest
	announce(SHCNE_MEDIAREMOVED, L"Q:\\");
	ASSERT_TRUE(observer.waitFor(5));
	EXPECT_EQ(mountPaths(monitor), Texts());
	announce(SHCNE_MEDIAINSERTED, L"Z:\\");
	announce(SHCNE_DRIVEREMOVED, L"C:\\");
	ASSERT_TRUE(observer.waitFor(7));
	EXPECT_EQ(observer.events(), (Texts{"+C:", "+E: stick", "+Z: share", "+E: stick", "-Q:", "+Z: share", "-C:"}));
	EXPECT_EQ(listening.log.text(), "");
}

TEST(VolumeEventMonitor, PathsWithoutADriveAreReportedEmptyAndTooLongOnesNotAtAll)
{
	Listening listening({{.paths = {L"\\\\server\\share\\", L"C:\\" + std::wstring(258, L'x')}},
		{.paths = {L"D:\\", L"D:\\" + std::wstring(257, L'x')}}});
	EXPECT_TRUE(listening.observer.waitFor(3));
	EXPECT_EQ(listening.observer.events(), (Texts{"+", "+D:", "+D:"}));
}

TEST(VolumeEventMonitor, TheTableHasOneVolumeForEachKeyAndChangesBeforeObserversAreTold)
{
	VolumeEventMonitor monitor;
	const auto volume = [](const char* key, const char* path)
	{
		VolumeInfo info;
		info.volumeKey = key;
		info.mountPath = path;
		return info;
	};
	std::vector<Texts> tables;
	RecordingObserver observer;
	// Another thread may read the table meanwhile.
	observer.onEvent = [&]
	{ tables.push_back(std::async(std::launch::async, [&] { return mountPaths(monitor); }).get()); };
	monitor.addObserver(&observer);
	monitor.notifyVolumeMounted(Kiln::VolumeMountedNotification(volume("b", "1:")));
	const auto first = monitor.mountedVolumes().at(0);
	monitor.notifyVolumeMounted(Kiln::VolumeMountedNotification(volume("a", "2:")));
	monitor.notifyVolumeMounted(Kiln::VolumeMountedNotification(volume("b", "3:")));
	EXPECT_EQ(first->mountPath, "1:") << "a copy that is still held";
	monitor.notifyVolumeUnmounted(Kiln::VolumeUnmountedNotification(volume("a", "")));
	monitor.notifyVolumeUnmounted(Kiln::VolumeUnmountedNotification(volume("c", "")));
	EXPECT_EQ(observer.events(), (Texts{"+1:", "+2:", "+3:", "-", "-"}));
	EXPECT_EQ(tables, (std::vector<Texts>{{"1:"}, {"2:", "1:"}, {"2:", "3:"}, {"3:"}, {"3:"}}));
}

TEST(VolumeEventMonitor, ASecondOneIsInertAndHarmsNothing)
{
	Listening listening({system});
	RecordingObserver& observer = listening.observer;
	{
		VolumeEventMonitor second;
		second.addObserver(&observer);
		EXPECT_TRUE(second.start());
		EXPECT_TRUE(listening.log.waitFor("Failed to register WNDCLASS for monitoring volume events"));
	}
	announce(SHCNE_DRIVEREMOVED, L"C:\\");
	EXPECT_TRUE(observer.waitFor(2));
	EXPECT_EQ(observer.events(), (Texts{"+C:", "-C:"}));

	auto third = std::make_unique<VolumeEventMonitor>();
	listening.monitor.reset();
	third->addObserver(&observer);
	EXPECT_TRUE(third->start()) << "the class is free again";
	EXPECT_TRUE(observer.waitFor(3));
	listening.computer.fail("FindFirstVolumeW", 5);
	Texts paths;
	EXPECT_EQ(third->listMountPoints(paths), 0u);
	Kiln::Logger::instance().component("VolumeEventMonitor")->setLevel(Kiln::LogLevel::error);
	listening.computer.fail("FindFirstVolumeW", 5);
	EXPECT_EQ(third->listMountPoints(paths), 0u) << "no second warning";
	EXPECT_EQ(listening.log.text(), "Failed to register WNDCLASS for monitoring volume events\n"
									"Failed to list attached volumes: FindFirstVolume() failed with error code 5\n");
	third.reset();
	EXPECT_FALSE(Kiln::Logger::instance().removeComponent("VolumeEventMonitor"));
}

TEST(VolumeEventMonitor, ItsWindowTakesNoOtherMessages)
{
	Listening listening({system});
	const HWND window = monitorWindow();
	EXPECT_FALSE(IsWindowVisible(window));
	WNDCLASSEXW description{};
	description.cbSize = sizeof description;
	EXPECT_TRUE(GetClassInfoExW(GetModuleHandleW(nullptr), L"VolumeEventMonitor", &description));
	EXPECT_EQ(description.style, 0x23u);
	for (const UINT message : {WM_NULL, WM_CLOSE, WM_GETTEXT, WM_USER + 199, WM_USER + 201, 0x4C8})
	{
		EXPECT_EQ(SendMessageW(window, message, 0, 0), 1) << message;
	}
	EXPECT_TRUE(IsWindow(window));
	EXPECT_EQ(listening.observer.events(), Texts{"+C:"});
	EXPECT_EQ(listening.log.text(), "");

	// A window without a monitor gets its first message before it is made, and so is not made.
	EXPECT_EQ(CreateWindowExW(0, L"VolumeEventMonitor", nullptr, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
				  GetModuleHandleW(nullptr), nullptr),
		nullptr);
	EXPECT_TRUE(
		listening.log.text().starts_with("Ignoring message of type 129; no valid VolumeEventMonitor instance\n"));
}

TEST(VolumeEventMonitor, ObserversThatThrowEndNothing)
{
	const auto unlock = counted("SHChangeNotification_Unlock", &SHChangeNotification_Unlock);
	const auto free = counted("CoTaskMemFree", &CoTaskMemFree);
	Listening listening({system, stick}, [] { throw std::runtime_error("an observer's own"); });
	announce(SHCNE_DRIVEREMOVED, L"E:\\");
	announce(SHCNE_DRIVEADD, L"E:\\");
	ASSERT_TRUE(listening.observer.waitFor(4));
	EXPECT_THROW(
		listening.monitor->notifyVolumeMounted(Kiln::VolumeMountedNotification(VolumeInfo())), std::runtime_error);
	EXPECT_EQ(listening.observer.events(), (Texts{"+C:", "+E: stick", "-E: stick", "+E: stick", "+"}));
	EXPECT_TRUE(isTrueSoon([&] { return unlock.calls() == 2; }));
	EXPECT_EQ(free.calls(), 2) << "the paths";
}

TEST(VolumeEventMonitor, ItsThreadStaysWithoutWindowsForCriticalErrors)
{
	std::atomic<DWORD> mode = 0;
	const ImportOverride translate("TranslateMessage", &TranslateMessage,
		[&](const MSG*)
		{
			mode = GetThreadErrorMode();
			return FALSE;
		});
	Listening listening({system}, [] { SetThreadErrorMode(0, nullptr); });
	announce(SHCNE_DRIVEREMOVED, L"C:\\");
	ASSERT_TRUE(listening.observer.waitFor(2));
	PostMessageW(monitorWindow(), WM_NULL, 0, 0);
	EXPECT_TRUE(isTrueSoon([&] { return translate.calls() > 0; }));
	EXPECT_EQ(mode, static_cast<DWORD>(SEM_FAILCRITICALERRORS));
}
} // namespace
