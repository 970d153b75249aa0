// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Fatal assertions. Failure texts carry the expression as written in the source.
#pragma once

#include "Containers/UnrealString.h"

/** What the macros call. Any thread. */
struct FDebug
{
	/**
	 * Prints the failure to the standard error stream and ends the process at once with exit code 3: nothing is unwound,
	 * shut down or saved. The message may be empty; no call stack is written.
	 */
	[[noreturn]] CORE_API static void CheckFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message);
};

#define HOST_CHECK(Text, Expression, ...)                                                                              \
	do                                                                                                                 \
	{                                                                                                                  \
		if (!(Expression)) [[unlikely]]                                                                                \
		{                                                                                                              \
			FDebug::CheckFailed(Text, __FILE__, __LINE__, FString::Printf(__VA_ARGS__));                               \
		}                                                                                                              \
	} while (false)

#define check(Expression) HOST_CHECK(#Expression, Expression, TEXT(""))
/** The message's format and arguments follow. */
#define checkf(Expression, ...) HOST_CHECK(#Expression, Expression, __VA_ARGS__)
