// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Lookup tables as text: .cube files, which most grading programs write. docs/cube.md lists what is read.
#pragma once

#include "Color/LookTable.h"

#include <string_view>
#include <variant>

namespace LookColor
{
/** The greatest number that a table may hold, and its negative the least. */
inline constexpr float MostTableValue = 65504.0f;

/** What stands in the way of reading a text, in English. */
struct FCubeError
{
	/** From 1. */
	std::size_t Line;
	std::string Expected;

	/** Printable, and short. */
	std::string Found;
};

/**
 * Reads a table. Memory stays below a few times the text's size, whatever sizes the text names.
 * @param Text UTF-8, with or without byte-order mark; lines end with LF, CRLF or CR
 */
std::variant<FLookTable, FCubeError> ReadCube(std::string_view Text);
} // namespace LookColor
