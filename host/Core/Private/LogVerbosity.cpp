// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Logging/LogVerbosity.h"

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	static const TCHAR* const Words[] = {
		TEXT("Error"), TEXT("Warning"), TEXT("Display"), TEXT("Log"), TEXT("Verbose"), TEXT("VeryVerbose")};
	return Words[Verbosity - ELogVerbosity::Error];
}
