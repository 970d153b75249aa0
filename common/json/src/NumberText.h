// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <span>

namespace Kiln
{
/**
 * Rewrites a number of a document, in as many bytes, where the parser might make of it another double than the nearest, or
 * fail: into no more digits than tell the double, and blanks behind them. One that is too big becomes one that the parser
 * finds too big. What is no number stays as it is, as do integers of up to 64 bits.
 */
void makeExact(std::span<char> number);

/** Rewrites a number into 0 and blanks behind it; what is no number stays as it is. */
void makeZero(std::span<char> number);
} // namespace Kiln
