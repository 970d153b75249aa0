// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Math/IntPoint.h"

/** From Min to Max, Max not included. */
struct FIntRect
{
	FIntPoint Min;
	FIntPoint Max;

	constexpr FIntRect() = default;
	constexpr FIntRect(int32 X0, int32 Y0, int32 X1, int32 Y1) : Min(X0, Y0), Max(X1, Y1) {}
};
