// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

FString FString::PrintfImpl(const TCHAR* Format, ...)
{
	// The Microsoft functions: in MinGW's own, %s takes narrow text.
	va_list Arguments;
	va_start(Arguments, Format);
	std::wstring Text(static_cast<size_t>(std::max(_vscwprintf(Format, Arguments), 0)), TEXT('\0'));
	va_end(Arguments);
	va_start(Arguments, Format);
	_vsnwprintf(Text.data(), Text.size() + 1, Format, Arguments);
	va_end(Arguments);
	return FString(Text.c_str());
}

FString& FString::operator/=(FStringView Other)
{
	const auto IsSlash = [](TCHAR Char) { return Char == TEXT('/') || Char == TEXT('\\'); };
	const bool bJoins = !IsEmpty() && Other.Len() > 0;
	if (bJoins && IsSlash(Data.back()))
	{
		Data.pop_back();
	}
	Data += bJoins && !IsSlash(*Other.begin()) ? TEXT("/") : TEXT("");
	return *this += Other;
}

int32 FString::Find(FStringView Text) const
{
	const size_t Found = ToLower().Data.find(FString(Text).ToLower().Data);
	return Text.Len() == 0 || Found == std::wstring::npos ? INDEX_NONE : static_cast<int32>(Found);
}

FString FString::Mid(int32 Start, int32 Count) const
{
	const int64 End = std::clamp<int64>(static_cast<int64>(Start) + Count, 0, Len());
	const int64 Begin = std::clamp<int64>(Start, 0, End);
	return ConstructFromPtrSize(Data.data() + Begin, static_cast<int32>(End - Begin));
}

FString FString::ToLower() const
{
	FString Lower = *this;
	for (TCHAR& Char : Lower.Data)
	{
		Char = Char >= TEXT('A') && Char <= TEXT('Z') ? static_cast<TCHAR>(Char - TEXT('A') + TEXT('a')) : Char;
	}
	return Lower;
}

uint32 GetTypeHash(const FString& String)
{
	return static_cast<uint32>(std::hash<std::wstring_view>()(*String.ToLower()));
}
