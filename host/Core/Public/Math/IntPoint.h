// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

struct FIntPoint
{
	int32 X = 0;
	int32 Y = 0;

	constexpr FIntPoint() = default;
	constexpr FIntPoint(int32 InX, int32 InY) : X(InX), Y(InY) {}

	friend bool operator==(const FIntPoint&, const FIntPoint&) = default;
};
