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
CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);
