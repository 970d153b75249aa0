// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Editor/EditorEngine.h"

struct FEditorDelegates
{
	/** The argument tells whether the session only simulates. */
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnPIEEvent, const bool);

	UNREALED_API static FOnPIEEvent StartPIE;
	UNREALED_API static FOnPIEEvent PreBeginPIE;
	UNREALED_API static FOnPIEEvent BeginPIE;
	UNREALED_API static FOnPIEEvent PostPIEStarted;
	UNREALED_API static FOnPIEEvent PrePIEEnded;
	UNREALED_API static FOnPIEEvent EndPIE;
	UNREALED_API static FOnPIEEvent ShutdownPIE;
	UNREALED_API static FSimpleMulticastDelegate CancelPIE;
};

/** Null until the engine is made, in commandlets, and at exit once the objects are gone. */
extern UNREALED_API UEditorEngine* GEditor;
