// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Trace.h"

#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogHostTrace, Log, All);

void HostTrace::Write(const FString& Text)
{
	UE_LOG(LogHostTrace, Log, TEXT("%s"), *Text);
}
