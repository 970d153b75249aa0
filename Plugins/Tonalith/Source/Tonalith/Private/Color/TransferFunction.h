// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The transfer function of sRGB, after IEC 61966-2-1: between values as displays take them and light. Both end at 1.
#pragma once

#include <algorithm>
#include <cmath>

namespace LookColor
{
/** The light of a value. */
inline double Decoded(double Value)
{
	return Value <= 0.04045 ? Value / 12.92 : std::pow((Value + 0.055) / 1.055, 2.4);
}

/** The value for a light; what is darker than black or brighter than white, or no number, is cut off. */
inline double Encoded(double Light)
{
	const double Shown = Light > 0.0 ? std::min(Light, 1.0) : 0.0;
	return Shown <= 0.0031308 ? Shown * 12.92 : 1.055 * std::pow(Shown, 1.0 / 2.4) - 0.055;
}
} // namespace LookColor
