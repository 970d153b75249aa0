// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Styling/SlateBrush.h"

/** Paints with an image file, which is opened when it is first painted. */
struct FSlateImageBrush : public FSlateBrush
{
	FSlateImageBrush(const FString& InImageName, const FVector2f& InImageSize,
		const FLinearColor& InTint = FLinearColor(1, 1, 1, 1),
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
	{
		ResourceName = FName(InImageName);
		ImageSize = InImageSize;
		TintColor = InTint;
		DrawAs = ESlateBrushDrawType::Image;
		Tiling = InTiling;
		ImageType = InImageType;
	}
};
