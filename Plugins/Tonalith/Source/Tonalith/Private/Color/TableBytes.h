// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Lookup tables as bytes, in the form in which looks keep them: values are floats of 16 bits, which are exact to a
// two-thousandth; 33 samples a side take 216 kB, the most that a table can have 13 MB.
#pragma once

#include "Color/LookTable.h"

#include <cstdint>
#include <optional>
#include <span>

namespace LookColor
{
/** All of the table but its title. */
std::vector<std::uint8_t> BytesOf(const FLookTable& Table);

/** The table without title; nothing for bytes that are none. Values that are no numbers count as 0. */
std::optional<FLookTable> TableFrom(std::span<const std::uint8_t> Bytes);
} // namespace LookColor
