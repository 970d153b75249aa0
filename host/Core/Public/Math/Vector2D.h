// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

struct FVector2D
{
	double X = 0.0;
	double Y = 0.0;

	constexpr FVector2D() = default;
	constexpr FVector2D(double InX, double InY) : X(InX), Y(InY) {}
};

struct FVector2f
{
	float X = 0.0f;
	float Y = 0.0f;

	constexpr FVector2f() = default;
	constexpr FVector2f(float InX, float InY) : X(InX), Y(InY) {}

	friend bool operator==(const FVector2f&, const FVector2f&) = default;
};
