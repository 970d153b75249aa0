// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/Grading.h"

#include "Color/TransferFunction.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace LookColor
{
namespace
{
constexpr double MiddleGrey = 0.18;
} // namespace

bool MixesChannels(const FGrading& Grading)
{
	return std::any_of(
		Grading.begin(), Grading.end(), [](const FChannelGrading& Channel) { return Channel.Saturation != 1.0; });
}

double GradedLight(const FChannelGrading& Grading, double Light)
{
	const double Contrasted = std::pow(Light / MiddleGrey, Grading.Contrast) * MiddleGrey;
	const double Lit = std::pow(Contrasted, 1.0 / Grading.Gamma);
	// The power may be infinite, and no gain is still none.
	return (Grading.Gain > 0.0 ? Lit * Grading.Gain : 0.0) + Grading.Offset;
}

float GradedValue(const FChannelGrading& Grading, double Light)
{
	return static_cast<float>(Encoded(GradedLight(Grading, Light)));
}

double LeastLightFor(const FChannelGrading& Grading, double Graded)
{
	if (GradedLight(Grading, 0.0) >= Graded)
	{
		return 0.0;
	}
	// Without gain or contrast all light becomes the same: then these are infinite.
	const double Contrasted = std::pow((Graded - Grading.Offset) / Grading.Gain, Grading.Gamma);
	const double Light = std::pow(Contrasted / MiddleGrey, 1.0 / Grading.Contrast) * MiddleGrey;
	// Black is not bright enough, however little light is.
	return std::max(Light, std::numeric_limits<double>::denorm_min());
}
} // namespace LookColor
