// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The string types. Comparisons ignore case (ASCII letters), but for Equals.
#pragma once

#include "HAL/Platform.h"

#include <string>
#include <string_view>
#include <utility>

/** Characters that someone else owns; not terminated. */
class FStringView
{
public:
	FStringView(const TCHAR* InText) : View(InText ? InText : TEXT("")) {}
	FStringView(const TCHAR* InData, int32 InSize) : View(InData, static_cast<size_t>(InSize)) {}

	int32 Len() const { return static_cast<int32>(View.size()); }

	const TCHAR* begin() const { return View.data(); }

	const TCHAR* end() const { return View.data() + View.size(); }

private:
	std::wstring_view View;
};

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

	/** Case counts. */
	bool Equals(const FString& Other) const { return Data == Other.Data; }

	/** The first place; an empty text is found at none. @return its first character's index, or INDEX_NONE */
	CORE_API int32 Find(FStringView Text) const;

	bool StartsWith(FStringView Prefix) const { return Mid(0, Prefix.Len()) == FString(Prefix); }

	bool EndsWith(FStringView Suffix) const { return Mid(Len() - Suffix.Len()) == FString(Suffix); }

	/** A copy of Count characters from Start; what lies outside is left out. */
	[[nodiscard]] CORE_API FString Mid(int32 Start, int32 Count = INT32_MAX) const;

	[[nodiscard]] CORE_API FString ToLower() const;

	friend bool operator==(const FString& A, const FString& B) { return A.ToLower().Equals(B.ToLower()); }

	friend bool operator<(const FString& A, const FString& B) { return A.ToLower().Data < B.ToLower().Data; }

private:
	CORE_API static FString PrintfImpl(const TCHAR* Format, ...);

	std::wstring Data;
};

/** Ignores case, like the comparison. */
CORE_API uint32 GetTypeHash(const FString& String);
