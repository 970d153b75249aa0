// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/**
 * Wakes one thread, which may begin to wait later. A standard semaphore may wake a waiter of another one instead where the
 * run-time library has no wait of the platform's to build on.
 */
class Signal
{
public:
	Signal() = default;
	~Signal() { CloseHandle(event_); }
	Signal(const Signal&) = delete;
	Signal& operator=(const Signal&) = delete;

	void send() { SetEvent(event_); }

	/** @return false when there was no signal for ten seconds */
	bool wait() { return WaitForSingleObject(event_, 10'000) == WAIT_OBJECT_0; }

private:
	const HANDLE event_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
};
