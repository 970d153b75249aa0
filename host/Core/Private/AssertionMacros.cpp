// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/AssertionMacros.h"

#include "Containers/StringConv.h"
#include "Logging/LogMacros.h"
#include "Misc/ScopeLock.h"

#include <cstdio>
#include <cstdlib>
#include <set>
#include <windows.h>

DEFINE_LOG_CATEGORY_STATIC(LogOutputDevice, Log, All);

namespace
{
/** The place as failure texts write it; a blank ends it. */
FString Place(const ANSICHAR* File, int32 Line)
{
	return FString::Printf(TEXT("[File:%s] [Line: %d] "), UTF8_TO_TCHAR(File), Line);
}
} // namespace

void FDebug::CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message)
{
	const FString Text =
		FString::Printf(TEXT("Assertion failed: %s %s\n%s"), UTF8_TO_TCHAR(Expression), *Place(File, Line), *Message);
	std::fflush(stdout);
	std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*Text));
	std::fflush(stderr);
	TerminateProcess(GetCurrentProcess(), 3);
	std::abort();
}

bool FDebug::EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message)
{
	static FCriticalSection Lock;
	static std::set<std::pair<std::string, int32>> Known;
	const FScopeLock Scope(&Lock);
	if (Known.emplace(File, Line).second)
	{
		UE_LOG(LogOutputDevice, Error, TEXT("=== Handled ensure: ==="));
		UE_LOG(LogOutputDevice, Error, TEXT(""));
		UE_LOG(LogOutputDevice, Error, TEXT("Ensure condition failed: %s  %s"), UTF8_TO_TCHAR(Expression),
			*Place(File, Line));
		UE_LOG(LogOutputDevice, Error, TEXT("%s"), *Message);
	}
	return false;
}
