// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <span>

namespace Kiln
{
/**
 * Rewrites the number that a part of a document begins with, in as many bytes, where the parser might make of it another
 * double than the nearest, or fail, or read beyond its tables: into no more digits than tell the double, and blanks behind
 * them. One that is too big becomes one that the parser finds too big. What follows the number stays as it is, as do integers
 * of up to 64 bits.
 */
void makeExact(std::span<char> digits);

/** Rewrites the number that a part of a document begins with into 0 and blanks behind it. */
void makeZero(std::span<char> digits);
} // namespace Kiln
