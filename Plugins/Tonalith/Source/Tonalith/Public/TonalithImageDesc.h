// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A picture that is handed over in memory.
#pragma once

#include "CoreMinimal.h"

#include <cstddef>

/**
 * Describes a picture that stays the caller's; the caller fills all fields. Plain data, laid out for other languages and
 * compilers.
 */
struct FTonalithAPI_ImageDesc
{
	/** In pixels: of the largest texture. */
	static constexpr int32 LongestSide = 16384;

	/** Version of this layout: 1. */
	int32 Version = 0;

	/** Rows from top to bottom, pixels as red, green, blue, alpha, 8 bits each. */
	const uint8* Pixels = nullptr;

	/** In pixels, 1 to LongestSide. */
	int32 Width = 0;
	int32 Height = 0;

	/** Pixels from one row to the next. */
	int32 RowLength = 0;

	/**
	 * How the stored values, 0 to 1, map to light: scale and offset of the values, then of their exposure. So far only 1,
	 * 0, 1 and 0 are shown: values as they are stored.
	 */
	float ValueScale = 0.0f;
	float ValueOffset = 0.0f;
	float ExposureScale = 0.0f;
	float ExposureOffset = 0.0f;

	/** The values that count. So far only ranges are shown that cut nothing off: from 0 or below to 1 or above. */
	float Minimum = 0.0f;
	float Maximum = 0.0f;

	/** In seconds from the start of a sequence; 0 for a still. */
	float Time = 0.0f;

	/** Bits for later versions. */
	uint8 Flags = 0;
};

static_assert(offsetof(FTonalithAPI_ImageDesc, Pixels) == 8);
static_assert(offsetof(FTonalithAPI_ImageDesc, Width) == 16);
static_assert(offsetof(FTonalithAPI_ImageDesc, Flags) == 56);
static_assert(sizeof(FTonalithAPI_ImageDesc) == 64);
