// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Internationalization/Internationalization.h"

#include "Host/Culture.h"
#include "Internationalization/Culture.h"
#include "Internationalization/Text.h"

FCulture::FCulture(const FString& InName) : Language(InName)
{
	const int32 Region = InName.Find(TEXT("-"));
	if (Region != INDEX_NONE)
	{
		Language = InName.Mid(0, Region);
	}
}

const FString& FCulture::GetTwoLetterISOLanguageName() const
{
	return Language;
}

FInternationalization& FInternationalization::Get()
{
	static FInternationalization Instance;
	return Instance;
}

struct FCultureSetter
{
	static void Set(const FCulturePtr& Culture) { FInternationalization::Get().CurrentLanguage = Culture; }
};

void HostCulture::Set(const FString& Name)
{
	FCultureSetter::Set(MakeShared<FCulture>(Name));
}

void HostCulture::Clear()
{
	FCultureSetter::Set(nullptr);
}

const FText& FText::GetEmpty()
{
	static const FText Empty;
	return Empty;
}
