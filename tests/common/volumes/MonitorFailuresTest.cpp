// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Each call of the platform that can fail, failing.
#include "Failing.h"
#include "Monitoring.h"

#include <process.h>
#include <system_error>

namespace
{
using Kiln::VolumeEventMonitor;

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
		EXPECT_EQ(observer.events(), Texts{"+"}) << "it is still a provider";
	}
	EXPECT_EQ(log.text(), warning + "\n");
	WNDCLASSEXW description{};
	description.cbSize = sizeof description;
	EXPECT_FALSE(GetClassInfoExW(GetModuleHandleW(nullptr), L"VolumeEventMonitor", &description));
}

TEST(MonitorFailures, EachStepOfTheThreadIsLoggedAndLeavesNothingBehind)
{
	for (const HRESULT result : {RPC_E_CHANGED_MODE, E_OUTOFMEMORY, HRESULT(2)})
	{
		const auto com = failing("CoInitializeEx", &CoInitializeEx, 0, result);
		expectInert("CoInitialize call failed; volume event monitoring will not work");
	}
	{
		const auto registration = failing("RegisterClassExW", &RegisterClassExW, ERROR_CLASS_ALREADY_EXISTS);
		expectInert("Failed to register WNDCLASS for monitoring volume events");
	}
	{
		const auto window = failing("CreateWindowExW", &CreateWindowExW, ERROR_ACCESS_DENIED);
		expectInert("Failed to create listener window for volume events");
	}
	const auto freed = counted("ILFree", &ILFree);
	const auto shell = failing("SHChangeNotifyRegister", &SHChangeNotifyRegister, ERROR_ACCESS_DENIED);
	expectInert("Failed to register for shell notifications");
	EXPECT_EQ(freed.calls(), 1) << "the folder that was to be watched";
}

TEST(MonitorFailures, ComThatIsThereAlreadyAndNoFolderOfDrivesAreNoFailures)
{
	const ImportOverride com("CoInitializeEx", &CoInitializeEx,
		[](void*, DWORD mode)
		{
			EXPECT_EQ(mode, static_cast<DWORD>(COINIT_APARTMENTTHREADED));
			return S_FALSE;
		});
	const ImportOverride folder("SHGetFolderLocation", &SHGetFolderLocation,
		[](HWND, int kind, auto...)
		{
			EXPECT_EQ(kind, CSIDL_DRIVES);
			return E_FAIL;
		});
	const FakeComputer computer(drives);
	RecordingObserver observer;
	VolumeEventMonitor monitor;
	monitor.addObserver(&observer);
	monitor.start();
	EXPECT_TRUE(observer.waitFor(1)) << "what is there is reported";
}

TEST(MonitorFailures, WithoutAThreadStartThrowsAndMayBeTriedAgain)
{
	const FakeComputer computer(drives);
	VolumeEventMonitor monitor;
	{
		const ImportOverride thread("_beginthreadex", &_beginthreadex,
			[](auto...) -> uintptr_t
			{
				errno = EAGAIN;
				return 0;
			});
		EXPECT_THROW(monitor.start(), std::system_error);
	}
	EXPECT_TRUE(monitor.start());
}

TEST(MonitorFailures, ChangesOfNoItemAndOfItemsWithoutAPathAreIgnored)
{
	Listening listening(drives);
	PostMessageW(monitorWindow(), 0x4C8, 1, 2);
	bool isFirst = true;
	const ImportOverride lock("SHChangeNotification_Lock", &SHChangeNotification_Lock,
		[&, real = &SHChangeNotification_Lock](HANDLE change, DWORD process, PIDLIST_ABSOLUTE** items, LONG* event)
		{
			static PIDLIST_ABSOLUTE none[2] = {};
			const HANDLE result = real(change, process, items, event);
			if (result && std::exchange(isFirst, false))
			{
				*items = none;
			}
			return result;
		});
	int creations = 0;
	std::vector<IUnknown*> made;
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
			made.push_back(static_cast<IUnknown*>(*out));
			made.back()->AddRef();
			return result;
		});
	for (int change = 0; change < 3; ++change)
	{
		announce(SHCNE_DRIVEADD, L"C:\\");
	}
	announce(SHCNE_DRIVEREMOVED, L"Q:\\");
	EXPECT_TRUE(listening.observer.waitFor(2));
	SendMessageW(monitorWindow(), WM_NULL, 0, 0);
	EXPECT_EQ(listening.observer.events(), (Texts{"+C:", "-Q:"}));
	EXPECT_EQ(creations, 3);
	for (IUnknown* item : made)
	{
		EXPECT_EQ(item->Release(), 0u) << "nobody else holds it";
	}
	EXPECT_EQ(listening.log.text(), "");
}

TEST(MonitorFailures, WithoutALogComponentTheyAreSilent)
{
	const auto run = []
	{
		struct Silent : Kiln::Logger
		{
			Kiln::LoggingComponent* component(const std::string&) override { return nullptr; }
		} logger;
		Kiln::Logger::setInstance(logger);
		FakeComputer computer(drives);
		computer.fail("FindFirstVolumeW", 5);
		Texts paths;
		const std::size_t count = VolumeEventMonitor().listMountPoints(paths);
		std::_Exit(count == 0 ? 0 : 1);
	};
	EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}
} // namespace
