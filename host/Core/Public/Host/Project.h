// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The project that is open.
#pragma once

#include "HAL/Platform.h"

class FString;

namespace HostProject
{
/** Both kinds of slash may stand in the path; it need not exist. Before any other thread runs. */
CORE_API void SetFolder(const FString& Folder);
} // namespace HostProject
