// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Templates/SharedPointer.h"

class FCulture;

using FCulturePtr = TSharedPtr<FCulture, ESPMode::ThreadSafe>;
using FCultureRef = TSharedRef<FCulture, ESPMode::ThreadSafe>;

/** The process's language. Set by the host; game thread. */
class FInternationalization
{
public:
	CORE_API static FInternationalization& Get();

	/** Fatal when there is none. */
	FCultureRef GetCurrentCulture() const { return CurrentLanguage.ToSharedRef(); }

private:
	friend struct FCultureSetter;

	FInternationalization() = default;

	FCulturePtr CurrentLanguage;
};
