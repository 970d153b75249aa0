// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "PlatformParts.h"
#include <memory>

namespace Kiln
{
struct ItemListFreer
{
	/** Named, since there are compilers for which the shell's pointer is one to unaligned memory. */
	using pointer = PIDLIST_ABSOLUTE;

	void operator()(PIDLIST_ABSOLUTE list) const { ILFree(list); }
};

/** Owns the shell's name of an item; null when there is none. */
using ItemList = std::unique_ptr<ITEMIDLIST, ItemListFreer>;
} // namespace Kiln
