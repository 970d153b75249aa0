// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

struct FVector4
{
	double X = 0.0;
	double Y = 0.0;
	double Z = 0.0;
	double W = 0.0;

	friend bool operator==(const FVector4&, const FVector4&) = default;
};
