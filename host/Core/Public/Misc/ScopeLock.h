// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/CriticalSection.h"

/** Holds a lock, never null, for as long as the object lives. */
class FScopeLock
{
public:
	explicit FScopeLock(FCriticalSection* SynchObject) : Guard(SynchObject->Mutex) {}

private:
	std::lock_guard<std::recursive_mutex> Guard;
};
