// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace Bench
{
/** The most memory that this process ever had at one time, in bytes. */
uint64_t peakMemory();
} // namespace Bench
