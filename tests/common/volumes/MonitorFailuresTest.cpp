// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Each call of the platform that can fail, failing.
#include "FakeComputer.h"
#include "RecordingObserver.h"
#include "Shell.h"
#include "WarningLog.h"

#include <kiln/VolumeEventMonitor.h>
#include <process.h>
#include <system_error>

namespace
{
using Kiln::VolumeEventMonitor;
using Events = std::vector<std::string>;

const std::vector<FakeVolume> drives{{.paths = {L"C:\\"}}};

/** Expects a monitor to log one warning, to report nothing, and to leave nothing behind. */
void expectInert(const std::string& warning)
{
	const FakeComputer computer(drives);
	WarningLog log;
	RecordingObserver observer;
	{
		VolumeEventMonitor monitor;
		monitor.addObserver(&observer);
		EXPECT_TRUE(monitor.start());
		EXPECT_TRUE(log.waitFor(warning));
		EXPECT_FALSE(monitor.start());
		EXPECT_TRUE(isTrueSoon([] { return monitorWindow() == nullptr; })) << "the window goes with the thread";
		monitor.notifyVolumeMounted(Kiln::VolumeMountedNotification(Kiln::VolumeInfo()));
		EXPECT_EQ(observer.events(), Events{"+"}) << "it is still a provider";
	}
	EXPECT_EQ(log.text(), warning + "\n");
	WNDCLASSEXW description{};
	description.cbSize = sizeof description;
	EXPECT_FALSE(GetClassInfoExW(GetModuleHandleW(nullptr), L"VolumeEventMonitor", &description));
}

TEST(MonitorFailures, WithoutComThereIsNoMonitoring)
{
	for (const HRESULT result : {RPC_E_CHANGED_MODE, E_OUTOFMEMORY, HRESULT(2)})
	{
		const ImportOverride com("CoInitializeEx", &CoInitializeEx,
			[&](void*, DWORD mode)
			{
				EXPECT_EQ(mode, static_cast<DWORD>(COINIT_APARTMENTTHREADED));
				return result;
			});
		expectInert("CoInitialize call failed; volume event monitoring will not work");
	}
}

TEST(MonitorFailures, ComThatIsThereAlreadyIsNoFailure)
{
	const ImportOverride com("CoInitializeEx", &CoInitializeEx, [](void*, DWORD) { return S_FALSE; });
	const ImportOverride folder("SHGetFolderLocation", &SHGetFolderLocation,
		[](HWND, int, HANDLE, DWORD, PIDLIST_ABSOLUTE*) { return E_FAIL; });
	const FakeComputer computer(drives);
	RecordingObserver observer;
	VolumeEventMonitor monitor;
	monitor.addObserver(&observer);
	monitor.start();
	EXPECT_TRUE(observer.waitFor(1)) << "without a folder to watch, what is there is still reported";
}

TEST(MonitorFailures, WithoutAWindowThereIsNoMonitoring)
{
	const auto refuse = [](DWORD, const wchar_t* name, const wchar_t* title, DWORD style, int x, int y, int width,
							int height, HWND parent, HMENU menu, HINSTANCE module, void* parameter) -> HWND
	{
		EXPECT_STREQ(name, L"VolumeEventMonitor");
		EXPECT_EQ(title, nullptr);
		EXPECT_EQ(style, WS_POPUP);
		EXPECT_EQ(x, CW_USEDEFAULT);
		EXPECT_EQ(y, 0);
		EXPECT_EQ(width, 640);
		EXPECT_EQ(height, 480);
		EXPECT_EQ(parent, nullptr);
		EXPECT_EQ(menu, nullptr);
		EXPECT_EQ(module, GetModuleHandleW(nullptr));
		EXPECT_NE(parameter, nullptr);
		return nullptr;
	};
	const ImportOverride window("CreateWindowExW", &CreateWindowExW, refuse);
	expectInert("Failed to create listener window for volume events");
}

TEST(MonitorFailures, WithoutAClassThereIsNoMonitoring)
{
	const ImportOverride window("RegisterClassExW", &RegisterClassExW, [](const WNDCLASSEXW*) -> ATOM { return 0; });
	expectInert("Failed to register WNDCLASS for monitoring volume events");
}

TEST(MonitorFailures, WithoutARegistrationThereIsNoMonitoring)
{
	void* folder = nullptr;
	bool isFolderFreed = false;
	const ImportOverride locate("SHGetFolderLocation", &SHGetFolderLocation,
		[&, real = &SHGetFolderLocation](HWND window, int kind, HANDLE token, DWORD flags, PIDLIST_ABSOLUTE* item)
		{
			EXPECT_EQ(kind, CSIDL_DRIVES);
			const HRESULT result = real(window, kind, token, flags, item);
			folder = *item;
			return result;
		});
	const ImportOverride free("CoTaskMemFree", &CoTaskMemFree,
		[&, real = &CoTaskMemFree](void* memory)
		{
			isFolderFreed |= memory == folder;
			real(memory);
		});
	const ImportOverride shell("SHChangeNotifyRegister", &SHChangeNotifyRegister,
		[](HWND, int, LONG, UINT, int, const SHChangeNotifyEntry*) { return 0ul; });
	expectInert("Failed to register for shell notifications");
	EXPECT_TRUE(isFolderFreed);
}

TEST(MonitorFailures, WithoutAThreadStartThrowsAndMayBeTriedAgain)
{
	const FakeComputer computer(drives);
	RecordingObserver observer;
	VolumeEventMonitor monitor;
	monitor.addObserver(&observer);
	{
		const ImportOverride thread("_beginthreadex", &_beginthreadex,
			[](void*, unsigned, unsigned(__stdcall*)(void*), void*, unsigned, unsigned*) -> uintptr_t
			{
				errno = EAGAIN;
				return 0;
			});
		try
		{
			monitor.start();
			FAIL() << "started without a thread";
		}
		catch (const std::system_error& error)
		{
			EXPECT_EQ(error.code(), std::errc::resource_unavailable_try_again);
		}
	}
	EXPECT_TRUE(monitor.start());
	EXPECT_TRUE(observer.waitFor(1));
}

/** A monitor that listens. */
struct Listening
{
	Listening()
	{
		monitor.addObserver(&observer);
		monitor.start();
		EXPECT_TRUE(observer.waitFor(1));
	}

	/** Announces what should not arrive, then what should. */
	Events announceBoth(const std::function<void()>& first)
	{
		first();
		SendMessageW(monitorWindow(), WM_NULL, 0, 0);
		announce(SHCNE_DRIVEREMOVED, L"Q:\\");
		EXPECT_TRUE(observer.waitFor(2));
		return observer.events();
	}

	const FakeComputer computer{drives};
	const decltype(watchBelow()) watch = watchBelow();
	WarningLog log;
	RecordingObserver observer;
	VolumeEventMonitor monitor;
};

TEST(MonitorFailures, MessagesThatTheShellDoesNotKnowAreIgnored)
{
	Listening listening;
	EXPECT_EQ(listening.announceBoth([] { PostMessageW(monitorWindow(), 0x4C8, 1, 2); }), (Events{"+C:", "-Q:"}));
	EXPECT_EQ(listening.log.text(), "");
}

TEST(MonitorFailures, ChangesOfNoItemAndOfItemsWithoutAPathAreIgnored)
{
	Listening listening;
	const auto withoutItem = []
	{
		const ImportOverride lock("SHChangeNotification_Lock", &SHChangeNotification_Lock,
			[real = &SHChangeNotification_Lock](HANDLE change, DWORD process, PIDLIST_ABSOLUTE** items, LONG* event)
			{
				static PIDLIST_ABSOLUTE none[2] = {};
				const HANDLE result = real(change, process, items, event);
				*items = none;
				return result;
			});
		const ImportOverride unlock("SHChangeNotification_Unlock", &SHChangeNotification_Unlock,
			[real = &SHChangeNotification_Unlock](HANDLE change) { return real(change); });
		announce(SHCNE_DRIVEADD, L"C:\\");
		EXPECT_TRUE(isTrueSoon([&] { return unlock.calls() > 0; }));
	};
	EXPECT_EQ(listening.announceBoth(withoutItem), (Events{"+C:", "-Q:"}));

	int creations = 0;
	const ImportOverride create("SHCreateItemFromIDList", &SHCreateItemFromIDList,
		[&, real = &SHCreateItemFromIDList](PCIDLIST_ABSOLUTE item, REFIID id, void** out)
		{
			// First none, then one outside the file system, then the one that was asked for.
			++creations;
			if (creations == 1)
			{
				return E_FAIL;
			}
			PIDLIST_ABSOLUTE panel = nullptr;
			SHGetFolderLocation(nullptr, CSIDL_CONTROLS, nullptr, 0, &panel);
			const HRESULT result = real(creations == 2 ? panel : item, id, out);
			CoTaskMemFree(panel);
			return result;
		});
	const auto withoutPath = []
	{
		announce(SHCNE_DRIVEADD, L"C:\\");
		announce(SHCNE_DRIVEADD, L"C:\\");
	};
	listening.announceBoth(withoutPath);
	EXPECT_TRUE(listening.observer.waitFor(3));
	EXPECT_EQ(listening.observer.events(), (Events{"+C:", "-Q:", "-Q:"}));
	EXPECT_EQ(creations, 3);
}
} // namespace
