// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A look's table in the forms in which it is drawn.
#pragma once

#include "Color/TableGrader.h"
#include "CoreMinimal.h"

class UTexture2D;

/** Never changes; made of a look's bytes when it is first drawn after a change. */
struct FLookTableInUse
{
	explicit FLookTableInUse(LookColor::FLookTable&& InTable) : Table(std::move(InTable)), Cube(Table) {}

	const LookColor::FLookTable Table;
	const LookColor::FPackedCube Cube;
};

/** The table of the stored bytes; null, and a warning in the log, when they are none. @param Owner for the log */
TSharedPtr<const FLookTableInUse> MakeTableInUse(const TArray<uint8>& Bytes, const FString& Owner);

/**
 * The table as the renderer takes it: 16 samples a side, taken from the table as its samples lie there, in one texture of
 * 256 x 16 pixels. Null without a renderer. Game thread.
 */
UTexture2D* MakeTableTexture(const LookColor::FLookTable& Table);
