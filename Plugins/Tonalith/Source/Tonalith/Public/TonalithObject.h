// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look asset.
#pragma once

#include "UObject/NoExportTypes.h"

#include "TonalithObject.generated.h"

/** A look: what is done to the colours of a picture. */
UCLASS(MinimalAPI)
class UTonalithObject : public UObject
{
	GENERATED_BODY()
};
