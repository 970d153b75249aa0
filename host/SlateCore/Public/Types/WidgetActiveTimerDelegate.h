// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Delegates/Delegate.h"

enum class EActiveTimerReturnType : uint8
{
	Continue,
	Stop
};

/** Called with the time and the time since the last call, in seconds. */
DECLARE_DELEGATE_RetVal_TwoParams(EActiveTimerReturnType, FWidgetActiveTimerDelegate, double, float);
