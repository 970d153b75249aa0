// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The five controls of a look as functions of light. Light is linear, white is 1.
#pragma once

#include <array>

namespace LookColor
{
/** What the controls say for one channel. The defaults change nothing. */
struct FChannelGrading
{
	/** 0 to 64: how far the channel lies from the luminance. */
	double Saturation = 1.0;

	/** 0 to 64: a power around middle grey. */
	double Contrast = 1.0;

	/** Above 0, to 64: the inverse of a power. */
	double Gamma = 1.0;

	/** 0 to 64: a factor. */
	double Gain = 1.0;

	/** -16 to 16: a summand, behind all others. */
	double Offset = 0.0;
};

/** Red, green and blue. */
using FGrading = std::array<FChannelGrading, 3>;

/** Whether a channel of the result depends on others than its own. */
bool MixesChannels(const FGrading& Grading);

/** How much of the luminance each channel is, after ITU-R BT.709. */
inline constexpr std::array<double, 3> LuminanceShares{0.2126, 0.7152, 0.0722};

/** The most that saturation makes of light up to white. */
inline constexpr double MostSaturation = 64.0;

/**
 * What contrast, gamma, gain and offset, in this order, make of the light of a channel; never falls as the light grows.
 * @param Light not negative; saturation has been applied
 */
double GradedLight(const FChannelGrading& Grading, double Light);

/** The same as a value for displays, 0 to 1. */
float GradedValue(const FChannelGrading& Grading, double Light);

/** The least light that becomes as bright as the given one, 0 at the least; infinity when no light does. */
double LeastLightFor(const FChannelGrading& Grading, double Graded);
} // namespace LookColor
