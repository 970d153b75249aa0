// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/NameTypes.h"

#include "Containers/Map.h"
#include "Containers/StringConv.h"
#include "Misc/ScopeLock.h"

#include <cwchar>
#include <deque>
#include <unordered_map>

namespace
{
/** All spellings of all names. */
class FNameTable
{
public:
	struct FIndices
	{
		uint32 Comparison;
		uint32 Display;
	};

	/** The only one; never destroyed, so that static destructors may use names. */
	static FNameTable& Get()
	{
		static FNameTable* const Table = new FNameTable();
		return *Table;
	}

	FIndices FindOrAdd(FStringView Spelling)
	{
		const FScopeLock Scope(&Lock);
		const auto [Entry, bIsNew] = Indices.try_emplace(std::wstring(Spelling.begin(), Spelling.end()), FIndices());
		if (bIsNew)
		{
			const uint32 Display = static_cast<uint32>(Spellings.size());
			const FString& Text = Spellings.emplace_back(Spelling);
			const uint32* Known = FirstSpellings.Find(Text);
			Entry->second = {Known ? *Known : FirstSpellings.Add(Text, Display), Display};
		}
		return Entry->second;
	}

	FString Find(uint32 Display)
	{
		const FScopeLock Scope(&Lock);
		return Spellings[Display];
	}

private:
	FNameTable() { FindOrAdd(TEXT("None")); }

	FCriticalSection Lock;
	std::deque<FString> Spellings;
	std::unordered_map<std::wstring, FIndices> Indices;

	/** Ignores case. */
	TMap<FString, uint32> FirstSpellings;
};

/** Splits "Name_12" into "Name" and 13. Leaves alone, with 0, what would not come back the same. */
uint32 SplitNumber(FStringView& Name)
{
	constexpr int64 Limit = 2147483647;
	const std::wstring_view View(Name.begin(), Name.end());
	const size_t Underscore = View.rfind(TEXT('_'));
	if (Underscore == View.npos || Underscore == 0)
	{
		return 0;
	}
	const std::wstring Digits(View.substr(Underscore + 1));
	const int64 Value = std::wcstoll(Digits.c_str(), nullptr, 10);
	if (Value < 0 || Value >= Limit || Digits != std::to_wstring(Value))
	{
		return 0;
	}
	Name = FStringView(Name.GetData(), static_cast<int32>(Underscore));
	return static_cast<uint32>(Value) + 1;
}
} // namespace

FName::FName(FStringView Name)
{
	check(Name.Len() < NAME_SIZE);
	if (Name.IsEmpty())
	{
		return;
	}
	Number = SplitNumber(Name);
	const FNameTable::FIndices Indices = FNameTable::Get().FindOrAdd(Name);
	ComparisonIndex = Indices.Comparison;
	DisplayIndex = Indices.Display;
}

FName::FName(const ANSICHAR* Name) : FName(UTF8_TO_TCHAR(Name)) {}

FName::FName(const UTF8CHAR* Name) : FName(UTF8_TO_TCHAR(Name)) {}

FString FName::GetPlainNameString() const
{
	return FNameTable::Get().Find(DisplayIndex);
}

FString FName::ToString() const
{
	const FString Plain = GetPlainNameString();
	return Number == 0 ? Plain : FString::Printf(TEXT("%s_%u"), *Plain, Number - 1);
}
