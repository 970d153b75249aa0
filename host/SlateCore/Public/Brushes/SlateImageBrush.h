// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Styling/SlateBrush.h"

/** Paints with an image file, which is opened when it is first painted. */
struct FSlateImageBrush : public FSlateBrush
{
	FSlateImageBrush(const FString& InImageName, const FVector2f& InImageSize,
		const FLinearColor& = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type = ESlateBrushImageType::FullColor)
	{
		ResourceName = FName(InImageName);
		ImageSize = InImageSize;
	}
};
