// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Logging/LogVerbosity.h"

class FName;

/** Takes log lines. Called by any thread, one at a time. */
class FOutputDevice
{
public:
	virtual ~FOutputDevice() = default;

	/** The text has no trailing line end, but may have several lines. */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
};
