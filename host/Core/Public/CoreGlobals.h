// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);

/** The file of what a user sets in a project. */
extern CORE_API FString GEditorPerProjectIni;

/** The game thread is the one that loaded the host. */
CORE_API bool IsInGameThread();
