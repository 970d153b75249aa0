// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A look's controls applied to pictures of 8 bits a channel.
#pragma once

#include "Color/Grading.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace LookColor
{
/**
 * Made once for a look, in well under a millisecond, and used for any number of pixels, on any number of threads at once.
 * A channel is off by one of 255 at most from what the formulas give.
 *
 * Saturation alone mixes channels. All that follows is one rising function of light for each channel: 256 results, each
 * from its least light on. A table over the light's exponent and first mantissa bits tells the result at once, unless
 * the function is so steep that a step of the table stands for three results or more; then it is searched for from the
 * step's first one on.
 */
class FFrameGrader
{
public:
	explicit FFrameGrader(const FGrading& Grading);

	/**
	 * Grades pixels: bytes red, green, blue in sRGB, and alpha, which stays.
	 * @param Target may be the source itself, but not overlap it otherwise
	 */
	void Grade(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const;

private:
	struct FChannel
	{
		/** For a stored value: its share of the luminance, and its light times the saturation. */
		std::array<double, 256> Luminance;
		std::array<double, 256> Light;

		/** How much of the luminance is added to that. */
		double LuminanceFactor;

		/** For each result the least light of the next; infinity for the last. */
		std::array<double, 256> NextLight;

		/** For each step of light the result in its middle, or at its begin where it is searched for. */
		std::vector<std::uint8_t> Results;
	};

	/** For each step of light the result at a place in it, from 0 at its begin to 1 at its end. */
	static std::vector<std::uint8_t> ResultsAt(const FChannel& Channel, double Place);

	/** The result for a light, which is the given one or a later one. */
	static std::uint8_t LastResult(const FChannel& Channel, double Light, std::uint8_t Result);

	template <class FindResult>
	void GradeBy(FindResult Find, const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const;

	std::array<FChannel, 3> Channels;

	/** Whether the tables of results do not do. */
	bool bIsSteep = false;
};
} // namespace LookColor
