// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Templates/SharedPointer.h"

class FCulture;

using FCultureRef = TSharedRef<FCulture>;

/** The process's language. Set by the host; game thread. */
class FInternationalization
{
public:
	CORE_API static FInternationalization& Get();

	/** Fatal when there is none. */
	CORE_API FCultureRef GetCurrentCulture() const;
};
