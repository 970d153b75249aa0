// Copyright 2026 Vantor. SPDX-License-Identifier: MIT

#include "Misc/CoreDelegates.h"

#include <atomic>

FDelegateHandle FDelegateHandle::New()
{
	static std::atomic<uint64> LastID = 0;
	FDelegateHandle Handle;
	Handle.ID = ++LastID;
	return Handle;
}

FSimpleMulticastDelegate FCoreDelegates::OnFEngineLoopInitComplete(TEXT("FCoreDelegates::OnFEngineLoopInitComplete"));
FSimpleMulticastDelegate FCoreDelegates::OnPostEngineInit(TEXT("FCoreDelegates::OnPostEngineInit"));
FSimpleMulticastDelegate FCoreDelegates::OnPreExit(TEXT("FCoreDelegates::OnPreExit"));
FSimpleMulticastDelegate FCoreDelegates::OnExit(TEXT("FCoreDelegates::OnExit"));
