// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Pictures of looks, held against the formulas.
#pragma once

#include "Formulas.h"
#include "Picture.h"

/** The most that a channel of the picture is off what the formulas make of the plain one, in steps of 8 bits. */
double WorstStep(const FPicture& Picture, const FPicture& Plain, auto Formulas)
{
	EXPECT_EQ(Picture.Size, Plain.Size);
	const auto Values = [](const FColor& Color) { return FColor3{Color.R / 255.0, Color.G / 255.0, Color.B / 255.0}; };
	double Worst = Picture.Size == Plain.Size ? 0 : 255;
	for (int32 At = 0; At < Plain.Pixels.Num() && Worst < 255; ++At)
	{
		Worst = std::max(Worst, stepsBetween(Values(Picture.Pixels[At]), Formulas(Values(Plain.Pixels[At]))));
	}
	return Worst;
}

/** How far two pictures that show the same are apart, in steps of 8 bits. */
inline double WorstStep(const FPicture& Picture, const FPicture& Same)
{
	return WorstStep(Picture, Same, [](const FColor3& Color) { return Color; });
}
