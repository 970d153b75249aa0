// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/NameTypes.h"

#include "Containers/StringConv.h"
#include "Misc/AssertionMacros.h"
#include "Misc/ScopeLock.h"

#include <unordered_map>

namespace
{
/** With its terminator. */
constexpr int32 NAME_SIZE = 1024;

/** The one copy of the text. */
const FString* Intern(const FString& Text)
{
	// Never destroyed: static destructors may use names.
	static FCriticalSection& Lock = *new FCriticalSection();
	static auto& Texts = *new std::unordered_map<std::wstring, FString>();
	const FScopeLock Scope(&Lock);
	return &Texts.try_emplace(*Text, Text).first->second;
}
} // namespace

FName::FName(FStringView Name)
{
	check(Name.Len() < NAME_SIZE);
	const FString Text(Name);
	if (!Text.IsEmpty())
	{
		Spelling = Intern(Text);
		Folded = Text == TEXT("None") ? nullptr : Intern(Text.ToLower());
	}
}

FName::FName(const ANSICHAR* Name) : FName(UTF8_TO_TCHAR(Name)) {}
