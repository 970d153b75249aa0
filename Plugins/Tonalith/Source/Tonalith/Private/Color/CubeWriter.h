// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Lookup tables as text, to hand to other programs.
#pragma once

#include "Color/LookTable.h"

namespace LookColor
{
/** The table as a .cube file: ASCII, six decimals, lines that end with LF. Bytes of the title beyond ASCII become "?". */
std::string CubeText(const FLookTable& Table);
} // namespace LookColor
