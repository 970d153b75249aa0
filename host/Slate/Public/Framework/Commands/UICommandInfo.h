// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

/** How an entry of a menu looks. */
enum class EUserInterfaceActionType : uint8
{
	None,
	Button,

	/** With a check box. */
	ToggleButton
};
