// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The host's own record of what happens in which order.
#pragma once

#include "Containers/UnrealString.h"

namespace HostTrace
{
/** Writes a line to category LogHostTrace at Log. Any thread. */
CORE_API void Write(const FString& Text);

/** As above, formatted as by FString::Printf. */
template <size_t Size, typename... ArgTypes>
void Line(const TCHAR (&Format)[Size], ArgTypes... Args)
{
	Write(FString::Printf(Format, Args...));
}
} // namespace HostTrace
