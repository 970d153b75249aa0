// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The display record: what one viewport shows.
#pragma once

#include "CoreMinimal.h"
#include "TonalithObject.h"
#include "UObject/ObjectPtr.h"

#include <cstddef>

#include "TonalithDisplayConfiguration.generated.h"

/** A plain value of 16 bytes; other modules copy it whole. The names of its members are a file format. */
USTRUCT()
struct FTonalithDisplayConfiguration
{
	GENERATED_BODY()

	/** Shows no look, in full. */
	TONALITH_API FTonalithDisplayConfiguration();

	/** Whether the look is drawn over the viewport. */
	UPROPERTY()
	bool bDisplay = false;

	/** How much of the look shows: 0 the plain picture, 1 the look in full. */
	UPROPERTY()
	float Weight = 1.0f;

	/** The look; none is chosen when null. */
	UPROPERTY()
	TObjectPtr<UTonalithObject> Look;
};

static_assert(sizeof(FTonalithDisplayConfiguration) == 16);
static_assert(offsetof(FTonalithDisplayConfiguration, bDisplay) == 0);
static_assert(offsetof(FTonalithDisplayConfiguration, Weight) == 4);
static_assert(offsetof(FTonalithDisplayConfiguration, Look) == 8);
