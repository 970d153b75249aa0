// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Log lines by category and verbosity. Any thread.
#pragma once

#include "Misc/OutputDeviceRedirector.h"
#include "UObject/NameTypes.h"

/** What log lines are sorted by. Lines below its verbosity are dropped. */
struct FLogCategoryBase
{
	FName Name;
	ELogVerbosity::Type Verbosity;
};

/** The format must be a TEXT literal; its arguments follow. */
#define UE_LOG(CategoryName, LineVerbosity, ...)                                                                       \
	do                                                                                                                 \
	{                                                                                                                  \
		if (ELogVerbosity::LineVerbosity <= CategoryName.Verbosity)                                                    \
		{                                                                                                              \
			GLog->Serialize(*FString::Printf(__VA_ARGS__), ELogVerbosity::LineVerbosity, CategoryName.Name);           \
		}                                                                                                              \
	} while (false)

// The compile-time verbosity is not looked at: it is All everywhere.

/** Ends without semicolon; may stand behind an export macro. */
#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                              \
	extern struct FLogCategory##CategoryName : FLogCategoryBase                                                        \
	{                                                                                                                  \
		FLogCategory##CategoryName() : FLogCategoryBase{TEXT(#CategoryName), ELogVerbosity::DefaultVerbosity} {}       \
	} CategoryName

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                               \
	static const FLogCategoryBase CategoryName                                                                         \
	{                                                                                                                  \
		TEXT(#CategoryName), ELogVerbosity::DefaultVerbosity                                                           \
	}
