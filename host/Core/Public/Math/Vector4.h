// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

struct FVector4
{
	double X = 0.0;
	double Y = 0.0;
	double Z = 0.0;
	double W = 0.0;

	constexpr FVector4() = default;
	constexpr FVector4(double InX, double InY, double InZ, double InW) : X(InX), Y(InY), Z(InZ), W(InW) {}

	friend bool operator==(const FVector4&, const FVector4&) = default;
};
