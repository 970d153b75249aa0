// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Scenes.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr uint8 Alpha = 0;

constexpr FColor Patches[] = {{255, 0, 0, Alpha}, {0, 255, 0, Alpha}, {0, 0, 255, Alpha}, {0, 255, 255, Alpha},
	{255, 0, 255, Alpha}, {255, 255, 0, Alpha}, {194, 150, 130, Alpha}, {87, 108, 67, Alpha}};

/** How strong a primary is in a hue: 1 in the third of the circle around it, 0 in the opposite one. */
double Primary(double Hue, double Centre)
{
	double Distance = std::abs(Hue - Centre);
	Distance = std::min(Distance, 1.0 - Distance);
	return std::clamp(2.0 - 6.0 * Distance, 0.0, 1.0);
}

FColor Hue(double Across, double Down)
{
	const auto Channel = [&](double Centre)
	{ return static_cast<uint8>(std::lround(255.0 * (Down + (1.0 - Down) * Primary(Across, Centre)))); };
	return FColor(Channel(0.0), Channel(1.0 / 3.0), Channel(2.0 / 3.0), Alpha);
}

/** The last of a number of steps is 1, the first 0. */
double Fraction(int32 Index, int32 Count)
{
	return Count > 1 ? static_cast<double>(Index) / (Count - 1) : 0.0;
}
} // namespace

FColor ChartColor(FIntPoint Pixel, FIntPoint Size)
{
	const int32 PatchTop = Size.Y / 2;
	const int32 RampTop = Size.Y * 3 / 4;
	if (Pixel.Y < PatchTop)
	{
		return Hue(static_cast<double>(Pixel.X) / Size.X, static_cast<double>(Pixel.Y) / PatchTop);
	}
	if (Pixel.Y < RampTop)
	{
		return Patches[Pixel.X * 8 / Size.X];
	}
	const uint8 Grey = static_cast<uint8>(std::lround(255.0 * Fraction(Pixel.X, Size.X)));
	return FColor(Grey, Grey, Grey, Alpha);
}
