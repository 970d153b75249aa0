// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Styling/SlateBrush.h"

/** Paints with pixels from memory. */
struct FSlateDynamicImageBrush : public FSlateBrush
{
	/** @param InImageData blue, green, red and alpha of each pixel; copied */
	static TSharedPtr<FSlateDynamicImageBrush> CreateWithImageData(const FName InTextureName,
		const FVector2D InImageSize, const TArray<uint8>& InImageData,
		const FLinearColor& InTint = FLinearColor(1, 1, 1, 1),
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::NoImage)
	{
		HostTrace::Line(TEXT("create texture"));
		const TSharedPtr<FSlateDynamicImageBrush> Brush = MakeShared<FSlateDynamicImageBrush>();
		Brush->ResourceName = InTextureName;
		Brush->ImageSize = FVector2f(static_cast<float>(InImageSize.X), static_cast<float>(InImageSize.Y));
		Brush->TintColor = InTint;
		Brush->DrawAs = ESlateBrushDrawType::Image;
		Brush->Tiling = InTiling;
		Brush->ImageType = InImageType;
		Brush->ImageData = InImageData;
		return Brush;
	}

	/** For the driver. */
	TArray<uint8> ImageData;
};
