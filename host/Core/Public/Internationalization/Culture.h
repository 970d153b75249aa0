// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/UnrealString.h"

/** A language with its region; never changes. */
class FCulture
{
public:
	/** @param InName such as "en" or "fr-CA" */
	explicit FCulture(const FString& InName) : Language(InName.Mid(0, (InName + TEXT("-")).Find(TEXT("-")))) {}

	/** The part before the region, such as "fr". */
	const FString& GetTwoLetterISOLanguageName() const { return Language; }

private:
	FString Language;
};
