// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

struct FVector2f
{
	float X = 0.0f;
	float Y = 0.0f;

	constexpr FVector2f() = default;
	constexpr FVector2f(float InX, float InY) : X(InX), Y(InY) {}

	friend bool operator==(const FVector2f&, const FVector2f&) = default;
};
