// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Logging/LogMacros.h"

#include "Misc/AssertionMacros.h"
#include "Misc/OutputDeviceRedirector.h"

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	static const TCHAR* const Words[] = {TEXT("NoLogging"), TEXT("Fatal"), TEXT("Error"), TEXT("Warning"),
		TEXT("Display"), TEXT("Log"), TEXT("Verbose"), TEXT("VeryVerbose")};
	return Words[Verbosity];
}

void FMsg::Log(
	const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const FString& Message)
{
	if (Verbosity == ELogVerbosity::Fatal)
	{
		FDebug::Fatal(File, Line, Message);
	}
	GLog->Serialize(*Message, Verbosity, Category);
}
