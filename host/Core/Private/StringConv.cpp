// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Containers/StringConv.h"

#include <cstring>
#include <cwchar>
#include <windows.h>

namespace
{
int32 Convert(const TCHAR* Source, int32 SourceLen, ANSICHAR* Target, int32 TargetLen)
{
	return WideCharToMultiByte(CP_UTF8, 0, Source, SourceLen, Target, TargetLen, nullptr, nullptr);
}

int32 Convert(const ANSICHAR* Source, int32 SourceLen, TCHAR* Target, int32 TargetLen)
{
	return MultiByteToWideChar(CP_UTF8, 0, Source, SourceLen, Target, TargetLen);
}

/** The conversion, then the given end. */
template <typename To, typename From>
std::vector<To> Convert(const From* Source, int32 SourceLen, To End)
{
	// The calls refuse empty input.
	const int32 Size = SourceLen > 0 ? Convert(Source, SourceLen, nullptr, 0) : 0;
	std::vector<To> Target(static_cast<size_t>(Size) + 1, End);
	if (Size > 0)
	{
		Convert(Source, SourceLen, Target.data(), Size);
	}
	return Target;
}
} // namespace

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source)
{
	Buffer = Convert(Source, Source ? static_cast<int32>(std::wcslen(Source)) : 0, '\0');
}

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source, int32 SourceLen)
{
	Buffer = Convert(Source, SourceLen, '#');
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source)
{
	Buffer = Convert(Source, Source ? static_cast<int32>(std::strlen(Source)) : 0, TEXT('\0'));
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen)
{
	Buffer = Convert(Source, SourceLen, TEXT('#'));
}
