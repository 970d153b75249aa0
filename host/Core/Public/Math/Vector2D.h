// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

struct FVector2D
{
	double X = 0.0;
	double Y = 0.0;
};

struct FVector2f
{
	float X = 0.0f;
	float Y = 0.0f;

	friend bool operator==(const FVector2f&, const FVector2f&) = default;
};
