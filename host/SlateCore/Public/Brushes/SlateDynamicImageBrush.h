// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Styling/SlateBrush.h"

/** Paints with pixels from memory. */
struct FSlateDynamicImageBrush : public FSlateBrush
{
	/** @param InImageData blue, green, red and alpha of each pixel; copied */
	static TSharedPtr<FSlateDynamicImageBrush> CreateWithImageData(const FName InTextureName,
		const FVector2D InImageSize, const TArray<uint8>& InImageData, const FLinearColor& = FLinearColor(1, 1, 1, 1),
		ESlateBrushTileType::Type = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type = ESlateBrushImageType::NoImage)
	{
		HostTrace::Line(TEXT("create texture"));
		const TSharedPtr<FSlateDynamicImageBrush> Brush = MakeShared<FSlateDynamicImageBrush>();
		Brush->ResourceName = InTextureName;
		Brush->ImageSize = FVector2f(static_cast<float>(InImageSize.X), static_cast<float>(InImageSize.Y));
		Brush->ImageData = InImageData;
		return Brush;
	}

	/** For the driver. */
	TArray<uint8> ImageData;
};
