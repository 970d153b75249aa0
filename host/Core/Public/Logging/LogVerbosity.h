// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

namespace ELogVerbosity
{
/** From worst to least. */
enum Type : uint8
{
	Error = 2,
	Warning,
	Display,
	Log,
	Verbose,
	VeryVerbose,
	All = VeryVerbose
};
} // namespace ELogVerbosity

/** The word that stands in log lines, such as "Warning". */
inline const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	static const TCHAR* const Words[] = {
		TEXT("Error"), TEXT("Warning"), TEXT("Display"), TEXT("Log"), TEXT("Verbose"), TEXT("VeryVerbose")};
	return Words[Verbosity - ELogVerbosity::Error];
}
