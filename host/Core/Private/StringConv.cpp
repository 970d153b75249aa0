// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Containers/StringConv.h"

#include <string_view>
#include <windows.h>

namespace
{
std::wstring ToWide(std::string_view Source)
{
	const auto Convert = [Length = static_cast<int32>(Source.size()), &Source](wchar_t* Target, int32 Size)
	{ return MultiByteToWideChar(CP_UTF8, 0, Source.data(), Length, Target, Size); };
	std::wstring Target(static_cast<size_t>(Convert(nullptr, 0)), L'\0');
	Convert(Target.data(), static_cast<int32>(Target.size()));
	return Target;
}
} // namespace

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source)
{
	const auto Convert = [View = std::wstring_view(Source ? Source : TEXT(""))](char* Target, size_t Size)
	{
		return WideCharToMultiByte(CP_UTF8, 0, View.data(), static_cast<int32>(View.size()), Target,
			static_cast<int32>(Size), nullptr, nullptr);
	};
	Buffer.resize(static_cast<size_t>(Convert(nullptr, 0)));
	Convert(Buffer.data(), Buffer.size());
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source)
	: Buffer(ToWide(Source ? Source : "")), ResultLength(static_cast<int32>(Buffer.size()))
{
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen)
	: Buffer(ToWide({Source, static_cast<size_t>(SourceLen)})), ResultLength(static_cast<int32>(Buffer.size()))
{
	Buffer += TEXT('#');
}
