// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The display record: what one viewport shows.
#pragma once

#include "CoreMinimal.h"

#include <cstddef>

class UTonalithObject;

/** A plain value of 16 bytes; other modules copy it whole. */
struct FTonalithDisplayConfiguration
{
	/** Whether the look is drawn over the viewport. */
	bool bDisplay = false;

	/** How much of the look shows: 0 the plain picture, 1 the look in full. */
	float Weight = 1.0f;

	/** The look; null when none is chosen. Not owned. */
	UTonalithObject* Look = nullptr;
};

static_assert(sizeof(FTonalithDisplayConfiguration) == 16);
static_assert(offsetof(FTonalithDisplayConfiguration, bDisplay) == 0);
static_assert(offsetof(FTonalithDisplayConfiguration, Weight) == 4);
static_assert(offsetof(FTonalithDisplayConfiguration, Look) == 8);
