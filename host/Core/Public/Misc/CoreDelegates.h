// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Delegates/Delegate.h"

struct FCoreDelegates
{
	/** The engine is ready for its first tick. Never in commandlets. */
	static CORE_API FSimpleMulticastDelegate OnFEngineLoopInitComplete;

	/** There is an engine; modules of the phase PostEngineInit come next. */
	static CORE_API FSimpleMulticastDelegate OnPostEngineInit;

	/** The editor exits; objects are still there. */
	static CORE_API FSimpleMulticastDelegate OnPreExit;
	static CORE_API FSimpleMulticastDelegate OnExit;
};
