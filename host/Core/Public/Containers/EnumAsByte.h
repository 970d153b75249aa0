// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// An old-style enumeration kept in one byte.
#pragma once

#include "HAL/Platform.h"

template <class TEnum>
class TEnumAsByte
{
public:
	TEnumAsByte(TEnum InValue = TEnum()) : Value(static_cast<uint8>(InValue)) {}

	operator TEnum() const { return static_cast<TEnum>(Value); }

private:
	uint8 Value;
};
