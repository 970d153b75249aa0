// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Log lines by category and verbosity. Any thread.
#pragma once

#include "Logging/LogCategory.h"

#include <type_traits>

/** What the macros call. */
struct FMsg
{
	/** Sends a line to GLog; a fatal one ends the process like a failed check. */
	CORE_API static void Logf(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity,
		const TCHAR* Format, ...);
};

/** Whether the type is that of a wide string literal. */
template <typename T>
inline constexpr bool TIsFormatLiteral = false;
template <size_t Size>
inline constexpr bool TIsFormatLiteral<const TCHAR (&)[Size]> = true;

#define UE_LOG(CategoryName, Verbosity, Format, ...)                                                                   \
	do                                                                                                                 \
	{                                                                                                                  \
		static_assert(TIsFormatLiteral<decltype((Format))>, "The format must be a TEXT literal.");                     \
		if (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity))                                                      \
		{                                                                                                              \
			FMsg::Logf(__FILE__, __LINE__, CategoryName.GetCategoryName(), ELogVerbosity::Verbosity,                   \
				Format __VA_OPT__(, ) __VA_ARGS__);                                                                    \
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
