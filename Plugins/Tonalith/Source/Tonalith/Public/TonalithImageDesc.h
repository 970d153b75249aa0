// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A picture that is handed over in memory.
#pragma once

#include "CoreMinimal.h"

#include <cstddef>

/** Describes a picture that stays the caller's. Plain data, laid out for other languages and compilers. */
struct FTonalithAPI_ImageDesc
{
	/** Version of this layout. */
	int32 Version = 1;

	/** Rows from top to bottom, pixels as red, green, blue, alpha, 8 bits each. */
	const uint8* Pixels = nullptr;

	/** In pixels. */
	int32 Width = 0;
	int32 Height = 0;

	/** Pixels from one row to the next. */
	int32 RowLength = 0;

	/** How the stored values map to light: scale and offset of the values, then of their exposure. */
	float ValueScale = 1.0f;
	float ValueOffset = 0.0f;
	float ExposureScale = 1.0f;
	float ExposureOffset = 0.0f;

	/** The values that may occur. */
	float Minimum = -1000.0f;
	float Maximum = 1000.0f;

	/** In seconds from the start of a sequence; 0 for a still. */
	float Time = 0.0f;

	/** Bits for later versions. */
	uint8 Flags = 0;
};

static_assert(offsetof(FTonalithAPI_ImageDesc, Version) == 0);
static_assert(offsetof(FTonalithAPI_ImageDesc, Pixels) == 8);
static_assert(offsetof(FTonalithAPI_ImageDesc, Width) == 16);
static_assert(offsetof(FTonalithAPI_ImageDesc, Height) == 20);
static_assert(offsetof(FTonalithAPI_ImageDesc, RowLength) == 24);
static_assert(offsetof(FTonalithAPI_ImageDesc, ValueScale) == 28);
static_assert(offsetof(FTonalithAPI_ImageDesc, ValueOffset) == 32);
static_assert(offsetof(FTonalithAPI_ImageDesc, ExposureScale) == 36);
static_assert(offsetof(FTonalithAPI_ImageDesc, ExposureOffset) == 40);
static_assert(offsetof(FTonalithAPI_ImageDesc, Minimum) == 44);
static_assert(offsetof(FTonalithAPI_ImageDesc, Maximum) == 48);
static_assert(offsetof(FTonalithAPI_ImageDesc, Time) == 52);
static_assert(offsetof(FTonalithAPI_ImageDesc, Flags) == 56);
static_assert(sizeof(FTonalithAPI_ImageDesc) == 64);
