// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Internationalization/Internationalization.h"

#include "Internationalization/Culture.h"

FInternationalization& FInternationalization::Get()
{
	static FInternationalization Instance;
	return Instance;
}

void FInternationalization::SetCurrentCulture(const FString& InCultureName)
{
	Current = InCultureName.IsEmpty() ? nullptr : TSharedPtr<FCulture>(MakeShared<FCulture>(InCultureName));
}
