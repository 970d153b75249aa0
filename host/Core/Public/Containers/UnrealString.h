// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The string type. Comparisons ignore case (ASCII letters) unless told otherwise.
#pragma once

#include "Containers/StringView.h"

#include <string>
#include <utility>

namespace ESearchCase
{
enum Type
{
	CaseSensitive,
	IgnoreCase
};
}

namespace ESearchDir
{
enum Type
{
	FromStart,
	FromEnd
};
}

class FString
{
public:
	FString() = default;
	FString(const TCHAR* Text) : Data(Text ? Text : TEXT("")) {}
	explicit FString(FStringView View) : Data(View.begin(), View.end()) {}

	static FString ConstructFromPtrSize(const TCHAR* Ptr, int32 Size) { return FString(FStringView(Ptr, Size)); }

	/** Arguments as for wide printf; %s takes const TCHAR*. */
	template <size_t Size, typename... ArgTypes>
	[[nodiscard]] static FString Printf(const TCHAR (&Format)[Size], ArgTypes... Args)
	{
		return PrintfImpl(Format, Args...);
	}

	/** The terminated characters; valid until the string changes. */
	const TCHAR* operator*() const { return Data.c_str(); }

	operator FStringView() const { return FStringView(Data.data(), Len()); }

	int32 Len() const { return static_cast<int32>(Data.size()); }

	bool IsEmpty() const { return Data.empty(); }

	FString& operator+=(FStringView Other)
	{
		Data.append(Other.begin(), Other.end());
		return *this;
	}

	/** Appends with exactly one "/" between; an empty side adds none. */
	CORE_API FString& operator/=(FStringView Other);

	friend FString operator+(FString A, FStringView B) { return std::move(A += B); }

	CORE_API bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	/** Orders by characters; negative, 0 or positive. */
	CORE_API int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	/** An empty text is found at no place. @return the first character's index, or INDEX_NONE */
	CORE_API int32 Find(FStringView Text, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const;

	CORE_API bool StartsWith(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	CORE_API bool EndsWith(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	/** A copy of Count characters from Start; what lies outside is left out. */
	[[nodiscard]] CORE_API FString Mid(int32 Start, int32 Count = INT32_MAX) const;

	[[nodiscard]] CORE_API FString ToLower() const;

	/** A copy with every From replaced; an empty From replaces nothing. */
	[[nodiscard]] CORE_API FString Replace(
		FStringView From, FStringView To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	friend bool operator==(const FString& A, const FString& B) { return A.Equals(B, ESearchCase::IgnoreCase); }

	friend bool operator<(const FString& A, const FString& B) { return A.Compare(B, ESearchCase::IgnoreCase) < 0; }

private:
	CORE_API static FString PrintfImpl(const TCHAR* Format, ...);

	std::wstring Data;
};

/** Ignores case, like the comparison. */
CORE_API uint32 GetTypeHash(const FString& String);
