// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

enum class EAllowShrinking : uint8
{
	No,
	Yes
};
