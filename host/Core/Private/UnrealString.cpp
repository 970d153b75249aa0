// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"

#include "Misc/Char.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace
{
TCHAR Fold(TCHAR Char, ESearchCase::Type SearchCase)
{
	return SearchCase == ESearchCase::IgnoreCase ? FChar::ToLower(Char) : Char;
}

auto SameChar(ESearchCase::Type SearchCase)
{
	return [SearchCase](TCHAR A, TCHAR B) { return Fold(A, SearchCase) == Fold(B, SearchCase); };
}

bool IsSlash(TCHAR Char)
{
	return Char == TEXT('/') || Char == TEXT('\\');
}
} // namespace

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
	if (IsEmpty() || Other.IsEmpty())
	{
		return *this += Other;
	}
	if (IsSlash(Data.back()))
	{
		Data.pop_back();
	}
	if (!IsSlash(*Other.begin()))
	{
		Data += TEXT('/');
	}
	return *this += Other;
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return std::equal(Data.begin(), Data.end(), Other.Data.begin(), Other.Data.end(), SameChar(SearchCase));
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	return SearchCase == ESearchCase::IgnoreCase ? ToLower().Data.compare(Other.ToLower().Data)
												 : Data.compare(Other.Data);
}

int32 FString::Find(FStringView Text, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const auto Search = [&](auto Algorithm)
	{
		const auto Found = Algorithm(Data.begin(), Data.end(), Text.begin(), Text.end(), SameChar(SearchCase));
		return Text.IsEmpty() || Found == Data.end() ? INDEX_NONE : static_cast<int32>(Found - Data.begin());
	};
	return SearchDir == ESearchDir::FromStart ? Search([](auto... A) { return std::search(A...); })
											  : Search([](auto... A) { return std::find_end(A...); });
}

bool FString::StartsWith(FStringView Prefix, ESearchCase::Type SearchCase) const
{
	return Prefix.Len() <= Len() && std::equal(Prefix.begin(), Prefix.end(), Data.begin(), SameChar(SearchCase));
}

bool FString::EndsWith(FStringView Suffix, ESearchCase::Type SearchCase) const
{
	return Suffix.Len() <= Len() &&
		   std::equal(Suffix.begin(), Suffix.end(), Data.end() - Suffix.Len(), SameChar(SearchCase));
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
	std::transform(Data.begin(), Data.end(), Lower.Data.begin(), FChar::ToLower);
	return Lower;
}

FString FString::Replace(FStringView From, FStringView To, ESearchCase::Type SearchCase) const
{
	FString Replaced;
	FString Rest = *this;
	for (int32 Index = Rest.Find(From, SearchCase); Index != INDEX_NONE; Index = Rest.Find(From, SearchCase))
	{
		Replaced += Rest.Mid(0, Index);
		Replaced += To;
		Rest = Rest.Mid(Index + From.Len());
	}
	return Replaced + Rest;
}

uint32 GetTypeHash(const FString& String)
{
	return static_cast<uint32>(std::hash<std::wstring_view>()(*String.ToLower()));
}
