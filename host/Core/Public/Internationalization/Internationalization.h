// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Internationalization/Text.h"
#include "Templates/SharedPointer.h"

class FCulture;

using FCultureRef = TSharedRef<FCulture>;

/** The process's language. Set by the host; game thread. */
class FInternationalization
{
public:
	CORE_API static FInternationalization& Get();

	/** Fatal when there is none. */
	FCultureRef GetCurrentCulture() const { return Current.ToSharedRef(); }

	/** @param InCultureName such as "en" or "fr-CA"; empty leaves the process without a culture, as before its start */
	CORE_API void SetCurrentCulture(const FString& InCultureName);

private:
	TSharedPtr<FCulture> Current;
};

/** A text in English; the host has no translations of it. LOCTEXT_NAMESPACE must be defined. */
#define LOCTEXT(Key, English) FText::FromString(TEXT(English))
