// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

/** Character classes; ASCII only, whatever the locale. */
struct FChar
{
	static constexpr TCHAR ToLower(TCHAR Char)
	{
		return Char >= TEXT('A') && Char <= TEXT('Z') ? static_cast<TCHAR>(Char - TEXT('A') + TEXT('a')) : Char;
	}
};
