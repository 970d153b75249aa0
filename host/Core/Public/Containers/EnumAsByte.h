// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** An old-style enumeration; the engine keeps it in one byte. */
template <class TEnum>
using TEnumAsByte = TEnum;
