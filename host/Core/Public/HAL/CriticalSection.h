// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <mutex>

/** A lock that its owning thread may take again. */
class FCriticalSection
{
public:
	void Lock() { Mutex.lock(); }

	void Unlock() { Mutex.unlock(); }

private:
	std::recursive_mutex Mutex;
};
