// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Conversion between UTF-16 and UTF-8. Malformed input becomes replacement characters.
#pragma once

#include "HAL/Platform.h"

#include <vector>

/**
 * The result of a conversion; lives as long as the object. The result of the sized form is terminated only if the given
 * length included a terminator: a stray character stands behind it, so that code that relies on a terminator shows.
 */
template <typename CharType>
class TConvertedString
{
public:
	TConvertedString(const TConvertedString&) = delete;
	TConvertedString& operator=(const TConvertedString&) = delete;

	const CharType* Get() const { return Buffer.data(); }

	/** In characters of the result, without the terminator of the unsized form. */
	int32 Length() const { return static_cast<int32>(Buffer.size()) - 1; }

	operator const CharType*() const { return Get(); }

protected:
	TConvertedString() = default;

	std::vector<CharType> Buffer;
};

class FTCHARToUTF8 : public TConvertedString<ANSICHAR>
{
public:
	/** Null gives an empty result. */
	CORE_API explicit FTCHARToUTF8(const TCHAR* Source);
	CORE_API FTCHARToUTF8(const TCHAR* Source, int32 SourceLen);
};

class FUTF8ToTCHAR : public TConvertedString<TCHAR>
{
public:
	/** Null gives an empty result. */
	CORE_API explicit FUTF8ToTCHAR(const ANSICHAR* Source);
	CORE_API FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen);
};

/** Both live until the end of the full expression. */
#define TCHAR_TO_UTF8(Text) (FTCHARToUTF8(static_cast<const TCHAR*>(Text)).Get())
#define UTF8_TO_TCHAR(Text) (FUTF8ToTCHAR(reinterpret_cast<const ANSICHAR*>(Text)).Get())
