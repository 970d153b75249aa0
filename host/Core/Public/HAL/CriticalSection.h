// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <mutex>

/** A lock that its owning thread may take again; see FScopeLock. */
class FCriticalSection
{
	friend class FScopeLock;

	std::recursive_mutex Mutex;
};
