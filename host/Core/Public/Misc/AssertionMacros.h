// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Fatal and non-fatal assertions. Failure texts carry the expression as written in the source.
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

	/** Logs the failure the first time that this line of this file fails. @return false */
	CORE_API static bool EnsureFailed(
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

/** Gives the truth of the expression. The message's format and arguments follow. */
#define ensureMsgf(Expression, ...)                                                                                    \
	(static_cast<bool>(Expression) ||                                                                                  \
		FDebug::EnsureFailed(#Expression, __FILE__, __LINE__, FString::Printf(__VA_ARGS__)))
