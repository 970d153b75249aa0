// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"
#include "Math/Vector2D.h"

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

protected:
	FName ResourceName;
};
