// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks applied to pictures of 8 bits a channel.
#pragma once

#include "Color/LightMixer.h"
#include "Color/LightTable.h"

#include <cstddef>

namespace LookColor
{
/** Made once for a look and used for any number of pixels, on any number of threads at once. */
class IFrameGrader
{
public:
	virtual ~IFrameGrader() = default;

	/**
	 * Grades pixels: bytes red, green, blue in sRGB, and alpha, which stays.
	 * @param Target may be the source itself, but not overlap it otherwise
	 */
	virtual void Grade(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const = 0;
};

/**
 * The controls of a look. Made in well under a millisecond. What it gives is what the formulas give, rounded.
 *
 * All that follows saturation is one rising function of light for each channel: 256 results, each from its least light on.
 * A table over light tells the first result of a step of light; nearly always the light lies before or behind the least
 * light of the next one. A function may be so steep that a step has many results: then they are tried one after another.
 */
class FControlsGrader final : public IFrameGrader
{
public:
	explicit FControlsGrader(const FGrading& Grading);

	virtual void Grade(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const override;

private:
	struct FChannel
	{
		/** For each result the least light of the next; infinity for the last. */
		std::array<double, 256> NextLight;
		TLightTable<std::uint8_t> FirstResults;
	};

	template <bool bIsSteep>
	void GradeAs(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const;

	FLightMixer Mixer;
	std::array<FChannel, 3> Channels;

	/** Whether a step has more than two results. */
	bool bIsAnySteep = false;
};
} // namespace LookColor
