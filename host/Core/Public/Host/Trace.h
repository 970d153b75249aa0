// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The host's own record of what happens in which order.
#pragma once

#include "HAL/Platform.h"

namespace HostTrace
{
/** Writes a line to category LogHostTrace at Log. Any thread. */
CORE_API void Line(const TCHAR* Format, ...);
} // namespace HostTrace
