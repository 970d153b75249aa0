// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

/** Names an object that lies directly in a package, such as "/Script/Engine.World". */
struct FTopLevelAssetPath
{
	FTopLevelAssetPath() = default;

	explicit FTopLevelAssetPath(const FString& InPath) : Path(InPath) {}

	const FString& ToString() const { return Path; }

private:
	FString Path;
};
