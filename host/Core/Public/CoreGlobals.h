// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"
#include "Logging/LogMacros.h"

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);

/** The game thread is the one that loaded the host. */
CORE_API bool IsInGameThread();
