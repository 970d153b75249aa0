// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/AssertionMacros.h"

#include "Containers/StringConv.h"
#include "Logging/LogMacros.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/ScopeLock.h"

#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>
#include <windows.h>

DEFINE_LOG_CATEGORY_STATIC(LogWindows, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogOutputDevice, Log, All);

namespace
{
/** The place as failure texts write it; a blank ends it. */
FString Place(const ANSICHAR* File, int32 Line)
{
	return FString::Printf(TEXT("[File:%s] [Line: %d] "), UTF8_TO_TCHAR(File), Line);
}

/** No call stacks are written. */
[[noreturn]] void EndProcess(const FString& Headline, const FString& Message)
{
	const FString Text = Headline + TEXT("\n") + Message;
	UE_LOG(LogWindows, Error, TEXT("appError called: %s"), *Text);
	UE_LOG(LogWindows, Error, TEXT("=== Critical error: ==="));
	UE_LOG(LogWindows, Error, TEXT(""));
	FString Rest = Text;
	for (int32 End = Rest.Find(TEXT("\n")); End != INDEX_NONE; End = Rest.Find(TEXT("\n")))
	{
		UE_LOG(LogWindows, Error, TEXT("%s"), *Rest.Mid(0, End));
		Rest = Rest.Mid(End + 1);
	}
	UE_LOG(LogWindows, Error, TEXT("%s"), *Rest);
	GLog->Flush();
	std::fflush(stdout);
	std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*Text));
	std::fflush(stderr);
	TerminateProcess(GetCurrentProcess(), 3);
	std::abort();
}

/** Whether this is the first failure there. */
bool IsFirstFailure(const ANSICHAR* File, int32 Line)
{
	static FCriticalSection Lock;
	static std::set<std::pair<std::string, int32>> Known;
	const FScopeLock Scope(&Lock);
	return Known.emplace(File, Line).second;
}
} // namespace

void FDebug::CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message)
{
	EndProcess(
		FString::Printf(TEXT("Assertion failed: %s %s"), UTF8_TO_TCHAR(Expression), *Place(File, Line)), Message);
}

void FDebug::Fatal(const ANSICHAR* File, int32 Line, const FString& Message)
{
	EndProcess(TEXT("Fatal error: ") + Place(File, Line), Message);
}

bool FDebug::EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message)
{
	if (!IsFirstFailure(File, Line))
	{
		return false;
	}
	UE_LOG(LogOutputDevice, Error, TEXT("=== Handled ensure: ==="));
	UE_LOG(LogOutputDevice, Error, TEXT(""));
	UE_LOG(
		LogOutputDevice, Error, TEXT("Ensure condition failed: %s  %s"), UTF8_TO_TCHAR(Expression), *Place(File, Line));
	UE_LOG(LogOutputDevice, Error, TEXT("%s"), *Message);
	return false;
}
