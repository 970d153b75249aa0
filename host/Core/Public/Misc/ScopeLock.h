// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/CriticalSection.h"
#include "Misc/AssertionMacros.h"

/** Holds a lock, never null, for as long as the object lives. */
class FScopeLock
{
public:
	explicit FScopeLock(FCriticalSection* InSynchObject) : SynchObject(InSynchObject)
	{
		check(SynchObject);
		SynchObject->Lock();
	}

	~FScopeLock() { SynchObject->Unlock(); }

	FScopeLock(const FScopeLock&) = delete;
	FScopeLock& operator=(const FScopeLock&) = delete;

private:
	FCriticalSection* SynchObject;
};
