// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"
#include "Math/Vector2D.h"

namespace ESlateBrushDrawType
{
enum Type : uint8
{
	NoDrawType,
	Image,
};
} // namespace ESlateBrushDrawType

namespace ESlateBrushTileType
{
enum Type : uint8
{
	NoTile,
};
} // namespace ESlateBrushTileType

namespace ESlateBrushImageType
{
enum Type : uint8
{
	NoImage,
	FullColor,
};
} // namespace ESlateBrushImageType

/** How an area is painted. */
struct FSlateBrush
{
	virtual ~FSlateBrush() = default;

	/** The file of an image. */
	FName GetResourceName() const { return ResourceName; }

	/** In units of the user interface. */
	FVector2f ImageSize;
	FLinearColor TintColor{1.0f, 1.0f, 1.0f, 1.0f};
	ESlateBrushDrawType::Type DrawAs = ESlateBrushDrawType::NoDrawType;
	ESlateBrushTileType::Type Tiling = ESlateBrushTileType::NoTile;
	ESlateBrushImageType::Type ImageType = ESlateBrushImageType::NoImage;

protected:
	FName ResourceName;
};
