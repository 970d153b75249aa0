// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace Kiln
{
/**
 * The local time as "26-11-14 03:36:50 ", by the system clock. Valid until the thread's next call; safe on any thread.
 * Empty when the C library has no local time for the clock's, beyond the year 3000.
 */
std::string_view timeStamp();
} // namespace Kiln
