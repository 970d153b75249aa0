// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/UnrealString.h"

/** A language with its region; never changes. */
class FCulture
{
public:
	/** @param InName such as "en" or "fr-CA" */
	CORE_API explicit FCulture(const FString& InName);

	/** The part before the region, such as "fr". */
	CORE_API const FString& GetTwoLetterISOLanguageName() const;

private:
	FString Language;
};
