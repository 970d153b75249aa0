// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Lookup tables as the renderer applies them.
#pragma once

#include "CoreMinimal.h"

#include <array>

struct FFinalPostProcessSettings;

/** All tables of a view as one: 16 samples a side in the encoding of displays, red running fastest, trilinear between. */
class FHostLookupTable
{
public:
	static constexpr int32 Side = 16;

	/** A texture that cannot be a table is an error in the log, and counts as none. */
	explicit FHostLookupTable(const FFinalPostProcessSettings& Settings);

	FColor Apply(const FColor& Color) const;

private:
	/** 0 to 255. */
	std::array<std::array<double, 3>, Side * Side * Side> Samples{};
	bool bIsNeutral = true;
};
