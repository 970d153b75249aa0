// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Names: texts kept once for the whole process, cheap to copy and compare.
#pragma once

#include "Containers/UnrealString.h"

/** Longest name, with its terminator. */
enum
{
	NAME_SIZE = 1024
};

/**
 * Keeps the case of its text, but compares without it (ASCII letters). A suffix
 * "_<number>" without leading zeros is kept as a number. Any thread; fatal when longer than NAME_SIZE - 1.
 */
class FName
{
public:
	/** NAME_None. */
	constexpr FName() = default;

	/** Null and empty texts give NAME_None. ANSI and UTF-8 texts are read as UTF-8. */
	CORE_API FName(const ANSICHAR* Name);
	CORE_API FName(const UTF8CHAR* Name);
	FName(const WIDECHAR* Name) : FName(FStringView(Name)) {}
	CORE_API explicit FName(FStringView Name);
	explicit FName(const FString& Name) : FName(FStringView(Name)) {}

	bool IsNone() const { return ComparisonIndex == 0 && Number == 0; }

	/** 0 without a number suffix, else one more than the suffix says. */
	int32 GetNumber() const { return static_cast<int32>(Number); }

	/** Without the number suffix. */
	CORE_API FString GetPlainNameString() const;

	/** NAME_None gives "None". */
	CORE_API FString ToString() const;

	friend bool operator==(const FName& A, const FName& B)
	{
		return A.ComparisonIndex == B.ComparisonIndex && A.Number == B.Number;
	}

	friend uint32 GetTypeHash(const FName& Name) { return Name.ComparisonIndex + Name.Number; }

private:
	uint32 ComparisonIndex = 0;
	uint32 Number = 0;
	uint32 DisplayIndex = 0;
};

static_assert(sizeof(FName) == 12);

inline constexpr FName NAME_None;
