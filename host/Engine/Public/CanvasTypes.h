// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

/** What a client draws into: the pixels of a viewport, row by row. */
class FCanvas
{
public:
	FCanvas(FIntPoint InSize, TArray<FColor>& InPixels) : Size(InSize), Pixels(InPixels) {}

	const FIntPoint Size;
	TArray<FColor>& Pixels;
};
