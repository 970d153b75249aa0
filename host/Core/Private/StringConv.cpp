// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Containers/StringConv.h"

#include <string_view>
#include <windows.h>

namespace
{
std::string ToUtf8(std::wstring_view Source)
{
	const auto Convert = [Length = static_cast<int32>(Source.size()), &Source](char* Target, int32 Size)
	{ return WideCharToMultiByte(CP_UTF8, 0, Source.data(), Length, Target, Size, nullptr, nullptr); };
	std::string Target(static_cast<size_t>(Convert(nullptr, 0)), '\0');
	Convert(Target.data(), static_cast<int32>(Target.size()));
	return Target;
}

std::wstring ToWide(std::string_view Source)
{
	const auto Convert = [Length = static_cast<int32>(Source.size()), &Source](wchar_t* Target, int32 Size)
	{ return MultiByteToWideChar(CP_UTF8, 0, Source.data(), Length, Target, Size); };
	std::wstring Target(static_cast<size_t>(Convert(nullptr, 0)), L'\0');
	Convert(Target.data(), static_cast<int32>(Target.size()));
	return Target;
}
} // namespace

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source) : Buffer(ToUtf8(Source ? Source : TEXT(""))) {}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source)
	: Buffer(ToWide(Source ? Source : "")), ResultLength(static_cast<int32>(Buffer.size()))
{
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen)
	: Buffer(ToWide({Source, static_cast<size_t>(SourceLen)})), ResultLength(static_cast<int32>(Buffer.size()))
{
	Buffer += TEXT('#');
}
