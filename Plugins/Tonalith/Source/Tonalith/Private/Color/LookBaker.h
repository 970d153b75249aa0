// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Whole looks as one lookup table, for programs that know no controls.
#pragma once

#include "Color/Grading.h"
#include "Color/LookTable.h"

namespace LookColor
{
/**
 * The controls, then the look's own table if it has one, as one table over displays' values, 0 to 1. Where the controls bend
 * the blacks, so that a cube alone would be off by more than 1 of 255, it gets curves in front that bend them likewise. Near
 * colors that saturation takes beyond black, a cube of 33 samples may be off by two dozens of 255, one of 65 by half of that.
 * @param Table of the look, may be null
 * @param Size of the cube
 */
FLookTable Baked(const FGrading& Grading, const FLookTable* Table, std::size_t Size);
} // namespace LookColor
