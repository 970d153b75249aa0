// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The text form of property values, as it stands in config files.
#include "UObject/ObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <cwchar>

namespace
{
struct FEscape
{
	TCHAR Character;
	TCHAR Letter;
};

constexpr FEscape Escapes[] = {
	{L'\n', L'n'}, {L'\r', L'r'}, {L'\t', L't'}, {L'\'', L'\''}, {L'"', L'"'}, {L'\\', L'\\'}};

void AppendQuoted(FString& Out, const FString& Text)
{
	Out += TEXT("\"");
	for (const TCHAR* At = *Text; *At; ++At)
	{
		const FEscape* Escape = std::find_if(
			std::begin(Escapes), std::end(Escapes), [At](const FEscape& Row) { return Row.Character == *At; });
		if (Escape != std::end(Escapes))
		{
			Out += TEXT("\\");
		}
		const TCHAR Written[] = {Escape != std::end(Escapes) ? Escape->Letter : *At, 0};
		Out += Written;
	}
	Out += TEXT("\"");
}

void SkipBlanks(const TCHAR*& Cursor)
{
	while (*Cursor == L' ' || *Cursor == L'\t')
	{
		++Cursor;
	}
}

/** A quoted text, or everything up to the next "," or ")". @return false when a quote is not closed */
bool ReadToken(const TCHAR*& Cursor, FString& Out)
{
	const TCHAR* At = Cursor;
	std::wstring Text;
	const bool bIsQuoted = *At == L'"';
	At += bIsQuoted;
	while (*At && (bIsQuoted ? *At != L'"' : *At != L',' && *At != L')'))
	{
		const FEscape* Escape = std::end(Escapes);
		if (bIsQuoted && At[0] == L'\\')
		{
			Escape = std::find_if(
				std::begin(Escapes), std::end(Escapes), [At](const FEscape& Row) { return Row.Letter == At[1]; });
			At += Escape != std::end(Escapes);
		}
		Text += Escape != std::end(Escapes) ? Escape->Character : *At;
		++At;
	}
	if (bIsQuoted && *At != L'"')
	{
		return false;
	}
	Cursor = At + bIsQuoted;
	Out = Text.c_str();
	return true;
}

/** Moves behind a value of any form: quotes and nested parentheses are respected. */
void SkipValue(const TCHAR*& Cursor)
{
	int32 Depth = 0;
	bool bIsQuoted = false;
	for (; *Cursor && (bIsQuoted || Depth > 0 || (*Cursor != L',' && *Cursor != L')')); ++Cursor)
	{
		if (bIsQuoted && *Cursor == L'\\' && Cursor[1])
		{
			++Cursor;
		}
		else if (*Cursor == L'"')
		{
			bIsQuoted = !bIsQuoted;
		}
		else if (!bIsQuoted)
		{
			Depth += (*Cursor == L'(') - (*Cursor == L')');
		}
	}
}

// One reader and one writer a type.

void Append(FString& Out, bool Value)
{
	Out += Value ? TEXT("True") : TEXT("False");
}

bool Read(const FString& Token, bool& OutValue)
{
	const bool bIsTrue = Token == TEXT("True") || Token == TEXT("Yes") || Token == TEXT("1");
	if (!bIsTrue && Token != TEXT("False") && Token != TEXT("No") && Token != TEXT("0"))
	{
		return false;
	}
	OutValue = bIsTrue;
	return true;
}

void Append(FString& Out, float Value)
{
	Out += FString::Printf(TEXT("%f"), static_cast<double>(Value));
}

bool Read(const FString& Token, float& OutValue)
{
	wchar_t* End = nullptr;
	const float Value = std::wcstof(*Token, &End);
	if (Token.IsEmpty() || *End)
	{
		return false;
	}
	OutValue = Value;
	return true;
}

void Append(FString& Out, const FName& Value)
{
	AppendQuoted(Out, Value.IsNone() ? FString() : Value.ToString());
}

bool Read(const FString& Token, FName& OutValue)
{
	OutValue = Token == TEXT("None") ? FName() : FName(Token);
	return true;
}

template <class T>
constexpr const TCHAR* TypeName = nullptr;
template <>
constexpr const TCHAR* TypeName<bool> = TEXT("bool");
template <>
constexpr const TCHAR* TypeName<float> = TEXT("float");
template <>
constexpr const TCHAR* TypeName<FName> = TEXT("FName");
} // namespace

template <class T>
FString TPlainProperty<T>::GetCPPType() const
{
	return TypeName<T>;
}

template <class T>
void TPlainProperty<T>::AppendText(FString& Out, const void* Value) const
{
	Append(Out, *static_cast<const T*>(Value));
}

template <class T>
bool TPlainProperty<T>::ReadText(const TCHAR*& Cursor, void* Value) const
{
	FString Token;
	return ReadToken(Cursor, Token) && Read(Token, *static_cast<T*>(Value));
}

template class TPlainProperty<bool>;
template class TPlainProperty<float>;
template class TPlainProperty<FName>;

FString FObjectProperty::GetCPPType() const
{
	return TEXT("TObjectPtr<U") + GetPropertyClass()->GetName() + TEXT(">");
}

void FObjectProperty::AppendText(FString& Out, const void* Value) const
{
	const UObject* Object = *static_cast<UObject* const*>(Value);
	if (!Object)
	{
		Out += TEXT("None");
		return;
	}
	Out += FString::Printf(TEXT("\"%s'%s'\""), *Object->GetClass()->GetPathName(), *Object->GetPathName());
}

bool FObjectProperty::ReadText(const TCHAR*& Cursor, void* Value) const
{
	FString Path;
	if (!ReadToken(Cursor, Path))
	{
		return false;
	}
	// With or without "<class>'...'" around the path.
	const int32 Quote = Path.Find(TEXT("'"));
	if (Quote != INDEX_NONE)
	{
		Path = Path.Mid(Quote + 1, Path.Len() - Quote - 2);
	}
	*static_cast<UObject**>(Value) =
		Path.IsEmpty() || Path == TEXT("None") ? nullptr : StaticLoadObject(GetPropertyClass(), *Path);
	return true;
}

FString FStructProperty::GetCPPType() const
{
	return TEXT("F") + Struct->GetName();
}

void FStructProperty::AppendText(FString& Out, const void* Value) const
{
	const TCHAR* Separator = TEXT("(");
	for (const auto& Member : Struct->GetOwnProperties())
	{
		Out += Separator;
		Out += Member->GetName() + TEXT("=");
		Member->AppendText(Out, static_cast<const char*>(Value) + Member->GetOffset());
		Separator = TEXT(",");
	}
	Out += TEXT(")");
}

bool FStructProperty::ReadText(const TCHAR*& Cursor, void* Value) const
{
	SkipBlanks(Cursor);
	if (*Cursor != L'(')
	{
		return false;
	}
	do
	{
		++Cursor;
		SkipBlanks(Cursor);
	} while (*Cursor && *Cursor != L')' && ReadMember(Cursor, Value) && *Cursor == L',');
	Cursor += *Cursor == L')';
	return true;
}

bool FStructProperty::ReadMember(const TCHAR*& Cursor, void* Value) const
{
	const TCHAR* const Equals = std::wcschr(Cursor, L'=');
	if (!Equals)
	{
		return false;
	}
	const FName MemberName(FStringView(Cursor, static_cast<int32>(Equals - Cursor)));
	Cursor = Equals + 1;
	SkipBlanks(Cursor);
	if (const FProperty* Member = Struct->FindPropertyByName(MemberName))
	{
		const TCHAR* Read = Cursor;
		Member->ReadText(Read, Member->ContainerPtrToValuePtr(Value));
	}
	SkipValue(Cursor);
	return true;
}

FString FArrayProperty::GetCPPType() const
{
	return TEXT("TArray<") + Inner->GetCPPType() + TEXT(">");
}

void FArrayProperty::AppendText(FString&, const void*) const
{
	checkf(false, TEXT("Arrays have no text of their own."));
}

bool FArrayProperty::ReadText(const TCHAR*&, void*) const
{
	return false;
}
