// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

struct FIntPoint
{
	int32 X = 0;
	int32 Y = 0;

	friend bool operator==(const FIntPoint&, const FIntPoint&) = default;
};
