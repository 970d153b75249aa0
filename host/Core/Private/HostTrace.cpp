// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Trace.h"

#include "FormatString.h"
#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogHostTrace, Log, All);

void HostTrace::Line(const TCHAR* Format, ...)
{
	va_list Arguments;
	va_start(Arguments, Format);
	const FString Text = FormatString(Format, Arguments);
	va_end(Arguments);
	UE_LOG(LogHostTrace, Log, TEXT("%s"), *Text);
}
