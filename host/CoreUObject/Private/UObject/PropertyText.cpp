// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The text form of property values, as it stands in config files.
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <cwchar>
#include <optional>

namespace
{
constexpr std::wstring_view Escaped = L"\n\r\t'\"\\";
constexpr std::wstring_view Letters = L"nrt'\"\\";

FString Quoted(const FString& Text)
{
	std::wstring Result = L"\"";
	for (const TCHAR Character : std::wstring_view(*Text))
	{
		const size_t Escape = Escaped.find(Character);
		Result += Escape == Escaped.npos ? std::wstring(1, Character) : std::wstring{L'\\', Letters[Escape]};
	}
	return FString((Result + L"\"").c_str());
}

/** What is in the quotes; a text that has none as it is, and nothing for one whose quote is not closed. */
std::optional<FString> Unquoted(const FString& Text)
{
	const std::wstring_view View(*Text);
	if (!View.starts_with(L'"'))
	{
		return Text;
	}
	std::wstring Result;
	for (size_t At = 1; At < View.size(); ++At)
	{
		if (View[At] == L'"')
		{
			return FString(Result.c_str());
		}
		const size_t Escape = View[At] == L'\\' && At + 1 < View.size() ? Letters.find(View[At + 1]) : Letters.npos;
		Result += Escape == Letters.npos ? View[At] : Escaped[Escape];
		At += Escape == Letters.npos ? 0 : 1;
	}
	return std::nullopt;
}

/** Takes the front up to the next mark outside of quotes and parentheses, and the mark with it. */
FString Take(std::wstring_view& Rest, TCHAR Mark)
{
	int32 Depth = 0;
	bool bIsQuoted = false;
	size_t At = 0;
	for (; At < Rest.size() && (bIsQuoted || Depth > 0 || Rest[At] != Mark); ++At)
	{
		if (Rest[At] == L'"')
		{
			bIsQuoted = !bIsQuoted;
		}
		else if (bIsQuoted)
		{
			At += Rest[At] == L'\\' && At + 1 < Rest.size() ? 1 : 0;
		}
		else
		{
			Depth += (Rest[At] == L'(') - (Rest[At] == L')');
		}
	}
	std::wstring Front(Rest.substr(0, At));
	Front.erase(0, Front.find_first_not_of(L" \t"));
	Rest.remove_prefix(std::min(At + 1, Rest.size()));
	return FString(Front.c_str());
}

} // namespace

void HostText::Read(const FString& Text, bool& OutValue)
{
	const bool bIsTrue = Text == TEXT("True") || Text == TEXT("Yes") || Text == TEXT("1");
	const bool bIsFalse = Text == TEXT("False") || Text == TEXT("No") || Text == TEXT("0");
	OutValue = bIsTrue || (OutValue && !bIsFalse);
}

void HostText::Read(const FString& Text, float& OutValue)
{
	wchar_t* End = nullptr;
	const float Value = std::wcstof(*Text, &End);
	OutValue = Text.IsEmpty() || *End ? OutValue : Value;
}

FString HostText::Write(const FName& Value)
{
	return Quoted(Value.IsNone() ? FString() : Value.ToString());
}

void HostText::Read(const FString& Text, FName& OutValue)
{
	if (const std::optional<FString> Name = Unquoted(Text))
	{
		OutValue = FName(*Name);
	}
}

FString HostText::Write(const FString& Value)
{
	return Value;
}

void HostText::Read(const FString& Text, FString& OutValue)
{
	OutValue = Text;
}

TArray<FString> HostText::WriteLines(const TArray<uint8>& Values)
{
	std::wstring Text;
	for (const uint8 Value : Values)
	{
		Text += {L"0123456789ABCDEF"[Value / 16], L"0123456789ABCDEF"[Value % 16]};
	}
	return {FString(Text.c_str())};
}

void HostText::ReadLines(const TArray<FString>& Lines, TArray<uint8>& OutValues)
{
	OutValues.Empty();
	for (int32 At = 0; At + 1 < Lines.Last().Len(); At += 2)
	{
		const TCHAR Digits[]{(*Lines.Last())[At], (*Lines.Last())[At + 1], 0};
		OutValues.Add(static_cast<uint8>(std::wcstoul(Digits, nullptr, 16)));
	}
}

void HostText::Read(const FString& Text, FVector4& OutValue)
{
	FVector4 Value;
	if (std::swscanf(*Text, L"(X=%lf,Y=%lf,Z=%lf,W=%lf)", &Value.X, &Value.Y, &Value.Z, &Value.W) == 4)
	{
		OutValue = Value;
	}
}

FString HostText::WriteObject(const UObject* Value)
{
	return Value ? FString::Printf(TEXT("\"%s'%s'\""), *Value->GetClass()->GetPathName(), *Value->GetPathName())
				 : FString(TEXT("None"));
}

UObject* HostText::ReadObject(const FString& Text, UClass* Class, UObject* Before)
{
	const std::optional<FString> Whole = Unquoted(Text);
	if (!Whole)
	{
		return Before;
	}
	// With or without "<class>'...'" around the path.
	const int32 Quote = Whole->Find(TEXT("'"));
	const FString Path = Quote == INDEX_NONE ? *Whole : Whole->Mid(Quote + 1, Whole->Len() - Quote - 2);
	return Path.IsEmpty() || Path == TEXT("None") ? nullptr : StaticLoadObject(Class, *Path);
}

FString HostText::WriteStruct(const UScriptStruct& Struct, const void* Value)
{
	FString Text;
	for (const auto& Member : Struct.Properties)
	{
		Text += (Text.IsEmpty() ? TEXT("(") : TEXT(",")) + Member->GetName() + TEXT("=");
		Text += Member->ToLines(Value).Last();
	}
	return Text + TEXT(")");
}

void HostText::ReadStruct(const FString& Text, const UScriptStruct& Struct, void* OutValue)
{
	std::wstring_view Rest(*Text);
	if (!Rest.starts_with(L'('))
	{
		return;
	}
	Rest.remove_prefix(1);
	Rest.remove_suffix(Rest.ends_with(L')') ? 1 : 0);
	while (!Rest.empty())
	{
		const FName Name(Take(Rest, L'='));
		const FString MemberText = Take(Rest, L',');
		if (const FProperty* Member = Struct.FindPropertyByName(Name))
		{
			Member->ReadLines({MemberText}, OutValue);
		}
	}
}
