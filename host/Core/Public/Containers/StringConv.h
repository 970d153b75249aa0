// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Conversion between UTF-16 and UTF-8. Malformed input becomes replacement characters, null an empty result. A result
// lives as long as its object.
#pragma once

#include "HAL/Platform.h"

#include <string>

class FTCHARToUTF8
{
public:
	CORE_API explicit FTCHARToUTF8(const TCHAR* Source);
	const ANSICHAR* Get() const { return Buffer.c_str(); }

private:
	std::string Buffer;
};

class FUTF8ToTCHAR
{
public:
	CORE_API explicit FUTF8ToTCHAR(const ANSICHAR* Source);

	/** The result is not terminated: a stray character stands behind it, so that code that relies on an end shows. */
	CORE_API FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen);

	const TCHAR* Get() const { return Buffer.c_str(); }

	/** In characters of the result, without a terminator. */
	int32 Length() const { return ResultLength; }

private:
	std::wstring Buffer;
	int32 ResultLength;
};

/** Both live until the end of the full expression. */
#define TCHAR_TO_UTF8(Text) (FTCHARToUTF8(static_cast<const TCHAR*>(Text)).Get())
#define UTF8_TO_TCHAR(Text) (FUTF8ToTCHAR(reinterpret_cast<const ANSICHAR*>(Text)).Get())
