// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"
#include "Logging/LogMacros.h"

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);

/** Frames since the start; the engine loop counts. */
CORE_API extern uint64 GFrameCounter;

/** The game thread is the one that loaded the host. */
CORE_API bool IsInGameThread();
