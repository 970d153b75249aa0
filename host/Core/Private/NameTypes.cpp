// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/NameTypes.h"

#include "Containers/StringConv.h"
#include "Misc/AssertionMacros.h"
#include "Misc/ScopeLock.h"

#include <string>
#include <unordered_map>

namespace
{
/** With its terminator. */
constexpr int32 NAME_SIZE = 1024;

struct FTable
{
	FCriticalSection Lock;
	std::unordered_map<std::wstring, FString> Texts;
};

/** Never destroyed: static destructors may use names. */
FTable& Table()
{
	static FTable& Instance = *new FTable();
	return Instance;
}

/** The one copy of the text. */
const FString* Intern(const FString& Text)
{
	const FScopeLock Scope(&Table().Lock);
	return &Table().Texts.try_emplace(*Text, Text).first->second;
}
} // namespace

FName::FName(FStringView Name)
{
	check(Name.Len() < NAME_SIZE);
	std::wstring Text(Name.begin(), Name.end());
	const size_t Digits = Text.find_last_not_of(L"0123456789") + 1;
	const size_t Count = Text.size() - Digits;
	// Neither leading zeros nor more digits than fit make a number.
	if (Digits > 1 && Text[Digits - 1] == L'_' && Count > 0 && Count < 10 && (Text[Digits] != L'0' || Count == 1))
	{
		Number = std::stoi(Text.substr(Digits)) + 1;
		Text.resize(Digits - 1);
	}
	const FString Plain(Text.c_str());
	Spelling = Plain.IsEmpty() ? nullptr : Intern(Plain);
	Folded = Plain.IsEmpty() || Plain == TEXT("None") ? nullptr : Intern(Plain.ToLower());
}

FName::FName(const ANSICHAR* Name) : FName(UTF8_TO_TCHAR(Name)) {}

FString FName::ToString() const
{
	const FString Text = Spelling ? *Spelling : FString(TEXT("None"));
	return Number ? FString::Printf(TEXT("%s_%d"), *Text, Number - 1) : Text;
}

size_t HostNames::Num()
{
	const FScopeLock Scope(&Table().Lock);
	return Table().Texts.size();
}
