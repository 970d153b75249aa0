// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"
#include "Templates/Function.h"

/** Calls the body for 0 to Num - 1, shared among cores, this thread among them; returns when all calls have. */
CORE_API void ParallelFor(int32 Num, TFunctionRef<void(int32)> Body);
