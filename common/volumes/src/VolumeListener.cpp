// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "VolumeListener.h"
#include "Contained.h"
#include "ShellChange.h"
#include <kiln/LockGuard.h>
#include <kiln/Unicode.h>
#include <kiln/VolumeNotification.h>
#include <utility>

namespace Kiln
{
namespace
{
constexpr const wchar_t* className = L"VolumeEventMonitor";
constexpr UINT classStyle = CS_VREDRAW | CS_HREDRAW | CS_OWNDC;

/** The longest mount path that is reported, in characters, with its NUL. */
constexpr std::size_t pathRoom = 261;
} // namespace

VolumeEventMonitor::Listener::~Listener()
{
	if (isClassRegistered_)
	{
		UnregisterClassW(className, module_);
	}
	CoUninitialize();
}

bool VolumeEventMonitor::Listener::start()
{
	const LockGuard guard(lock_);
	if (isStopping_ || thread_.joinable())
	{
		return false;
	}
	thread_ = std::thread([this] { run(); });
	return true;
}

void VolumeEventMonitor::Listener::stop()
{
	isStopping_ = true;
	std::thread thread;
	{
		const LockGuard guard(lock_);
		thread = std::move(thread_);
	}
	while (!postQuit())
	{
		Sleep(1);
	}
	ULONG registration = 0;
	{
		const LockGuard guard(lock_);
		registration = std::exchange(registration_, 0);
	}
	// Before the thread's end: a storm of changes could keep it from seeing that it is to end.
	if (registration != 0)
	{
		SHChangeNotifyDeregister(registration);
	}
	if (thread.joinable())
	{
		thread.join();
	}
}

bool VolumeEventMonitor::Listener::postQuit()
{
	const LockGuard guard(lock_);
	return !window_ || PostMessageW(window_, WM_QUIT, 0, 0) || GetLastError() != ERROR_NOT_ENOUGH_QUOTA;
}

void VolumeEventMonitor::Listener::run()
{
	const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
	if (com != S_OK && com != S_FALSE)
	{
		VolumeLog::warn("CoInitialize call failed; volume event monitoring will not work");
		return;
	}
	isClassRegistered_ = registerClass();
	if (!isClassRegistered_)
	{
		VolumeLog::warn("Failed to register WNDCLASS for monitoring volume events");
		return;
	}
	const HWND window = CreateWindowExW(
		0, className, nullptr, WS_POPUP, CW_USEDEFAULT, 0, 640, 480, nullptr, nullptr, module_, &monitor_);
	if (!window)
	{
		VolumeLog::warn("Failed to create listener window for volume events");
		return;
	}
	setWindow(window);
	if (registerWithShell(window))
	{
		contained([&] { reportPresentVolumes(); });
		MSG message;
		while (!isStopping_ && GetMessageW(&message, nullptr, 0, 0) > 0)
		{
			if (!TranslateAcceleratorW(message.hwnd, nullptr, &message))
			{
				TranslateMessage(&message);
				DispatchMessageW(&message);
			}
		}
	}
	else
	{
		VolumeLog::warn("Failed to register for shell notifications");
	}
	setWindow(nullptr);
	DestroyWindow(window);
}

bool VolumeEventMonitor::Listener::registerClass()
{
	WNDCLASSEXW description{};
	description.cbSize = sizeof description;
	description.style = classStyle;
	description.lpfnWndProc = windowProcedure;
	description.hInstance = module_;
	description.lpszClassName = className;
	return RegisterClassExW(&description) != 0;
}

/** @return false when the shell refuses; without a folder to watch, there is nothing that it could refuse */
bool VolumeEventMonitor::Listener::registerWithShell(HWND window)
{
	const ItemList folder = computerFolder();
	const LockGuard guard(lock_);
	if (!folder || isStopping_)
	{
		return true;
	}
	registration_ = registerForShellChanges(window, folder.get());
	return registration_ != 0;
}

void VolumeEventMonitor::Listener::setWindow(HWND window)
{
	const LockGuard guard(lock_);
	window_ = window;
}

void VolumeEventMonitor::Listener::reportPresentVolumes()
{
	std::vector<std::string> paths;
	monitor_.listMountPoints(paths);
	for (const std::string& path : paths)
	{
		const std::wstring widePath = toWide(path);
		if (isStopping_)
		{
			return;
		}
		if (!widePath.empty() && widePath.size() < pathRoom)
		{
			contained([&] { reportMounted(widePath); });
		}
	}
}

LRESULT CALLBACK VolumeEventMonitor::Listener::windowProcedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
	if (message == WM_NCCREATE)
	{
		const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(second);
		SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
	}
	auto* monitor = reinterpret_cast<VolumeEventMonitor*>(GetWindowLongPtrW(window, GWLP_USERDATA));
	if (!monitor)
	{
		VolumeLog::warn("Ignoring message of type ", message, "; no valid VolumeEventMonitor instance");
		return 0;
	}
	if (message == shellChangeMessage)
	{
		contained([&] { monitor->listener_->handleChange(first, second); });
	}
	return 1;
}

void VolumeEventMonitor::Listener::handleChange(WPARAM first, LPARAM second)
{
	const ShellChange change(first, second);
	const std::optional<std::wstring> path = change.path();
	if (!path || isStopping_)
	{
		return;
	}
	switch (change.event())
	{
	case SHCNE_MEDIAINSERTED:
	case SHCNE_DRIVEADD:
		reportMounted(*path);
		break;
	case SHCNE_MEDIAREMOVED:
	case SHCNE_DRIVEREMOVED:
		reportUnmounted(*path);
		break;
	default:
		break;
	}
}

void VolumeEventMonitor::Listener::reportMounted(const std::wstring& path)
{
	VolumeInfo volume;
	if (queryVolumeInfo(path, volume) != 0)
	{
		monitor_.notifyVolumeMounted(VolumeMountedNotification(volume));
	}
}

/** What went can hardly be read: the record may have its mount path alone. */
void VolumeEventMonitor::Listener::reportUnmounted(const std::wstring& path)
{
	VolumeInfo volume;
	queryVolumeInfo(path, volume);
	monitor_.notifyVolumeUnmounted(VolumeUnmountedNotification(volume));
}
} // namespace Kiln
