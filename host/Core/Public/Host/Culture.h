// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The culture that plug-ins see.
#pragma once

#include "HAL/Platform.h"

class FString;

namespace HostCulture
{
/** @param Name such as "en" or "fr-CA" */
CORE_API void Set(const FString& Name);

/** Leaves the process without a culture; asking for it is then fatal. */
CORE_API void Clear();
} // namespace HostCulture
