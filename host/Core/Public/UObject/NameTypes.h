// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Names: texts kept once for the whole process, cheap to copy and compare.
#pragma once

#include "Containers/UnrealString.h"
#include "Templates/TypeHash.h"

/**
 * Keeps the case of its text, but compares without it (ASCII letters). An end such as "_12" is kept as a number: names that
 * differ in it only share their text. Any thread; fatal from 1024 characters on.
 */
class FName
{
public:
	/** NAME_None. */
	constexpr FName() = default;

	/** Null and empty texts give NAME_None. ANSI text is read as UTF-8. */
	CORE_API FName(const ANSICHAR* Name);
	FName(const WIDECHAR* Name) : FName(FStringView(Name)) {}
	CORE_API explicit FName(FStringView Name);
	explicit FName(const FString& Name) : FName(FStringView(Name)) {}

	bool IsNone() const { return Folded == nullptr && Number == 0; }

	/** NAME_None gives "None". */
	CORE_API FString ToString() const;

	friend bool operator==(const FName& A, const FName& B) { return A.Folded == B.Folded && A.Number == B.Number; }

	friend uint32 GetTypeHash(const FName& Name) { return GetTypeHash(Name.Folded) + static_cast<uint32>(Name.Number); }

private:
	/** The text, and the text without case; one address each for the process. */
	const FString* Spelling = nullptr;
	const FString* Folded = nullptr;

	/** One more than the number at the end; 0 without one. */
	int32 Number = 0;
};

inline constexpr FName NAME_None;

namespace HostNames
{
/** How many texts are kept. They never go. */
CORE_API size_t Num();
} // namespace HostNames
