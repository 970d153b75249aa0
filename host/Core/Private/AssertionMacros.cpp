// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/AssertionMacros.h"

#include "Containers/StringConv.h"
#include <cstdio>
#include <cstdlib>
#include <windows.h>

void FDebug::CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message)
{
	const FString Text = FString::Printf(TEXT("Assertion failed: %s [File:%s] [Line: %d] \n%s"),
		UTF8_TO_TCHAR(Expression), UTF8_TO_TCHAR(File), Line, *Message);
	std::fflush(stdout);
	std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*Text));
	std::fflush(stderr);
	TerminateProcess(GetCurrentProcess(), 3);
	std::abort();
}
