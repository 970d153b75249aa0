// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The assets that a session knows by path.
#pragma once

#include "CoreMinimal.h"

struct FHostAsset
{
	/** Such as "/Script/Tonalith.TonalithObject". */
	FString ClassPath;

	/** Such as "/Game/Looks/Warm.Warm". */
	FString Path;
};

namespace HostAssets
{
/** Makes the asset known; its object is made when it is first asked for, or by LoadAll. */
COREUOBJECT_API void Declare(const FHostAsset& Asset);

/** Makes the objects of all declared assets whose classes exist. */
COREUOBJECT_API void LoadAll();
} // namespace HostAssets
