// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Fatal and non-fatal assertions. Failure texts carry the expression as written in the source.
#pragma once

#include "Containers/UnrealString.h"

/** What the macros call. Any thread. */
struct FDebug
{
	/**
	 * Logs the failure, prints it to the standard error stream, flushes both and ends the process at once with exit
	 * code 3: nothing is unwound, shut down or saved. The message may be empty.
	 */
	[[noreturn]] CORE_API static void CheckFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message);

	/** Logs the failure the first time that this line of this file fails. @return false */
	CORE_API static bool EnsureFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message);

	/** Ends the process like a failed check, with a text of its own. */
	[[noreturn]] CORE_API static void Fatal(const ANSICHAR* File, int32 Line, const FString& Message);
};

#define HOST_CHECK(Text, Expression, ...)                                                                              \
	do                                                                                                                 \
	{                                                                                                                  \
		if (!(Expression)) [[unlikely]]                                                                                \
		{                                                                                                              \
			FDebug::CheckFailed(Text, __FILE__, __LINE__, FString::Printf(__VA_ARGS__));                               \
		}                                                                                                              \
	} while (false)

#define HOST_ENSURE(Text, Expression, ...)                                                                             \
	(static_cast<bool>(Expression) || FDebug::EnsureFailed(Text, __FILE__, __LINE__, FString::Printf(__VA_ARGS__)))

#define check(Expression) HOST_CHECK(#Expression, Expression, TEXT(""))
#define verify(Expression) HOST_CHECK(#Expression, Expression, TEXT(""))
/** The message's format and arguments follow. */
#define checkf(Expression, ...) HOST_CHECK(#Expression, Expression, __VA_ARGS__)

/** Both give the truth of the expression. */
#define ensure(Expression) HOST_ENSURE(#Expression, Expression, TEXT(""))
#define ensureMsgf(Expression, ...) HOST_ENSURE(#Expression, Expression, __VA_ARGS__)

/** Compiled, never evaluated: slow checks belong to debug engines. */
#define checkSlow(Expression)                                                                                          \
	do                                                                                                                 \
	{                                                                                                                  \
		if (false)                                                                                                     \
		{                                                                                                              \
			static_cast<void>(Expression);                                                                             \
		}                                                                                                              \
	} while (false)
