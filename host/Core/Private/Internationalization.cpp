// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Internationalization/Internationalization.h"

#include "Host/Culture.h"
#include "Internationalization/Culture.h"

namespace
{
TSharedPtr<FCulture> Current;
}

FInternationalization& FInternationalization::Get()
{
	static FInternationalization Instance;
	return Instance;
}

FCultureRef FInternationalization::GetCurrentCulture() const
{
	return Current.ToSharedRef();
}

void HostCulture::Set(const FString& Name)
{
	Current = MakeShared<FCulture>(Name);
}

void HostCulture::Clear()
{
	Current.Reset();
}
