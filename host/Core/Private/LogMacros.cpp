// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Logging/LogMacros.h"

#include "FormatString.h"
#include "Misc/AssertionMacros.h"
#include "Misc/OutputDeviceRedirector.h"

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	static const TCHAR* const Words[] = {TEXT("NoLogging"), TEXT("Fatal"), TEXT("Error"), TEXT("Warning"),
		TEXT("Display"), TEXT("Log"), TEXT("Verbose"), TEXT("VeryVerbose")};
	return Words[Verbosity];
}

void FMsg::Logf(
	const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format, ...)
{
	va_list Arguments;
	va_start(Arguments, Format);
	const FString Message = FormatString(Format, Arguments);
	va_end(Arguments);
	if (Verbosity == ELogVerbosity::Fatal)
	{
		FDebug::Fatal(File, Line, *Message);
	}
	GLog->Serialize(*Message, Verbosity, Category);
}
