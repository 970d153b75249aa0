// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Log lines by category and verbosity. Any thread.
#pragma once

#include "Logging/LogCategory.h"

/** What the macros call. */
struct FMsg
{
	/** Sends a line to GLog; a fatal one ends the process like a failed check. */
	CORE_API static void Log(
		const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const FString& Message);
};

/** The format must be a TEXT literal; its arguments follow. */
#define UE_LOG(CategoryName, Verbosity, ...)                                                                           \
	do                                                                                                                 \
	{                                                                                                                  \
		if (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity))                                                      \
		{                                                                                                              \
			FMsg::Log(__FILE__, __LINE__, CategoryName.GetCategoryName(), ELogVerbosity::Verbosity,                    \
				FString::Printf(__VA_ARGS__));                                                                         \
		}                                                                                                              \
	} while (false)

/** Ends without semicolon; may stand behind an export macro. */
#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                              \
	extern class FLogCategory##CategoryName                                                                            \
		: public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity>                    \
	{                                                                                                                  \
	public:                                                                                                            \
		FLogCategory##CategoryName() : FLogCategory(TEXT(#CategoryName)) {}                                            \
	} CategoryName

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                               \
	static FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> CategoryName(            \
		TEXT(#CategoryName))
