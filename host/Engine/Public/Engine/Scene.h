// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

/** Not used here; declared for the sake of the name, which the engine takes. */
struct FColorGradePerRangeSettings;

/**
 * How a picture is finished. The colour controls work in linear light, one after the other: saturation, contrast around
 * middle grey, gamma, gain, offset; W scales the other three, or for the offset is added to them.
 */
struct FPostProcessSettings
{
	uint8 bOverride_ColorSaturation : 1 = false;
	uint8 bOverride_ColorContrast : 1 = false;
	uint8 bOverride_ColorGamma : 1 = false;
	uint8 bOverride_ColorGain : 1 = false;
	uint8 bOverride_ColorOffset : 1 = false;

	FVector4 ColorSaturation{1.0, 1.0, 1.0, 1.0};
	FVector4 ColorContrast{1.0, 1.0, 1.0, 1.0};
	FVector4 ColorGamma{1.0, 1.0, 1.0, 1.0};
	FVector4 ColorGain{1.0, 1.0, 1.0, 1.0};
	FVector4 ColorOffset{0.0, 0.0, 0.0, 0.0};
};
