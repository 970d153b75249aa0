// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

struct FMath
{
	template <class T>
	static T Clamp(const T X, const T Min, const T Max)
	{
		return std::clamp(X, Min, Max);
	}

	static bool IsFinite(double A) { return std::isfinite(A); }

	/** Halves go up. */
	static int32 RoundToInt32(float F) { return static_cast<int32>(std::floor(F + 0.5f)); }
};
