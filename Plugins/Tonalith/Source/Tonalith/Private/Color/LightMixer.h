// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The light of pixels, and what saturation makes of it: the one control that mixes channels.
#pragma once

#include "Color/Grading.h"

#include <cstdint>

namespace LookColor
{
class FLightMixer
{
public:
	explicit FLightMixer(const FGrading& Grading);

	/** The light of a pixel after saturation; negative for what is beyond black. @param Pixel red, green, blue in sRGB */
	std::array<double, 3> Mix(const std::uint8_t* Pixel) const
	{
		const auto& [Red, Green, Blue] = Channels;
		const double Luminance = Red.Luminance[Pixel[0]] + Green.Luminance[Pixel[1]] + Blue.Luminance[Pixel[2]];
		return {Luminance * Red.LuminanceFactor + Red.Light[Pixel[0]],
			Luminance * Green.LuminanceFactor + Green.Light[Pixel[1]],
			Luminance * Blue.LuminanceFactor + Blue.Light[Pixel[2]]};
	}

private:
	struct FChannel
	{
		/** For a stored value: its share of the luminance, and its light times the saturation. */
		std::array<double, 256> Luminance;
		std::array<double, 256> Light;

		/** How much of the luminance is added to that. */
		double LuminanceFactor;
	};

	std::array<FChannel, 3> Channels;
};
} // namespace LookColor
