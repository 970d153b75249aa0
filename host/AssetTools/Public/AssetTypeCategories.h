// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

/** Where an asset type stands in menus and filters; bits. */
namespace EAssetTypeCategories
{
enum Type : uint32
{
	None = 0,
	Misc = 1 << 6,
};
} // namespace EAssetTypeCategories
