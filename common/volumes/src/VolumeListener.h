// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "../../platform/Platform.h"
#include "VolumeLog.h"
#include <atomic>
#include <kiln/VolumeEventMonitor.h>
#include <thread>

namespace Kiln
{
/**
 * The thread of a monitor and what belongs to it: window class, hidden window, registration with the shell. The window ends
 * with the thread; the others with the object, on the thread that destroys it.
 */
class VolumeEventMonitor::Listener
{
public:
	explicit Listener(VolumeEventMonitor& monitor) : monitor_(monitor) {}

	/** The thread must have been stopped. */
	~Listener();

	/** As VolumeEventMonitor::start. */
	bool start();

	/** Ends the thread, wherever it is, and waits for its end. */
	void stop();

private:
	void run();
	bool registerClass();
	bool registerWithShell(HWND window);
	void setWindow(HWND window);

	/** @return false when the window's message queue is full; a window that is gone has gone with its thread */
	bool postQuit();

	void reportPresentVolumes();
	void handleChange(WPARAM first, LPARAM second);
	void reportMounted(const std::wstring& path);
	void reportUnmounted(const std::wstring& path);
	static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM first, LPARAM second);

	const VolumeLog log_;
	VolumeEventMonitor& monitor_;
	const HINSTANCE module_ = GetModuleHandleW(nullptr);

	/** Used by the thread, and after its end. */
	bool isClassRegistered_ = false;

	/** Set before stop() looks at what the lock guards, and read wherever that is set: one of the two sees the other. */
	std::atomic<bool> isStopping_ = false;

	Lock lock_;
	std::thread thread_ KILN_GUARDED_BY(lock_);
	HWND window_ KILN_GUARDED_BY(lock_) = nullptr;
	ULONG registration_ KILN_GUARDED_BY(lock_) = 0;
};
} // namespace Kiln
