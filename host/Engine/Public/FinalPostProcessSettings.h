// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/Array.h"
#include "Engine/Scene.h"

class UTexture;

/** A lookup table's share of the result. */
struct FLUTBlenderEntry
{
	float Weight;

	/** Null is the table that changes nothing. */
	UTexture* LUTTexture;
};

/** The settings of a view, with what is blended from several sources. */
struct FFinalPostProcessSettings : public FPostProcessSettings
{
	/** From no table. */
	FFinalPostProcessSettings() { SetLUT(nullptr); }

	/** The only table from now on. */
	void SetLUT(UTexture* Texture) { ContributingLUTs = {{1.0f, Texture}}; }

	/** Blends a table in. @param InTexture not null. @param Weight 0 to 1; above 254/255 all others are replaced */
	void LerpTo(UTexture* InTexture, float Weight)
	{
		check(InTexture);
		check(Weight >= 0.0f && Weight <= 1.0f);
		if (Weight > 254.0f / 255.0f)
		{
			SetLUT(InTexture);
			return;
		}
		for (FLUTBlenderEntry& Entry : ContributingLUTs)
		{
			Entry.Weight *= 1.0f - Weight;
		}
		ContributingLUTs.Add({Weight, InTexture});
	}

	TArray<FLUTBlenderEntry> ContributingLUTs;
};
