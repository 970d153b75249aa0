// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

/** What the rows are built as; the host builds menus only. */
enum class EMultiBoxType : uint8
{
	Menu
};
