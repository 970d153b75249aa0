// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/LightMixer.h"

#include "Color/TransferFunction.h"

namespace LookColor
{
FLightMixer::FLightMixer(const FGrading& Grading)
{
	for (std::size_t Index = 0; Index < Channels.size(); ++Index)
	{
		FChannel& Channel = Channels[Index];
		const double Saturation = Grading[Index].Saturation;
		Channel.LuminanceFactor = 1.0 - Saturation;
		for (std::size_t Stored = 0; Stored < Channel.Light.size(); ++Stored)
		{
			const double Light = Decoded(static_cast<double>(Stored) / 255.0);
			Channel.Luminance[Stored] = Light * LuminanceShares[Index];
			Channel.Light[Stored] = Light * Saturation;
		}
	}
}
} // namespace LookColor
