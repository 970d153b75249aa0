// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The host's own record of what happens in which order.
#pragma once

#include "Misc/OutputDeviceRedirector.h"
#include "UObject/NameTypes.h"

namespace HostTrace
{
/** Writes a line to category LogHostTrace at Log, formatted as by FString::Printf. Any thread. */
template <size_t Size, typename... ArgTypes>
void Line(const TCHAR (&Format)[Size], ArgTypes... Args)
{
	GLog->Serialize(*FString::Printf(Format, Args...), ELogVerbosity::Log, "LogHostTrace");
}
} // namespace HostTrace
