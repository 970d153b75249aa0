// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

/** The user interface as a whole. There is none in commandlets. */
class FSlateApplication
{
public:
	SLATE_API static void Create();
	SLATE_API static void Shutdown();
	SLATE_API static bool IsInitialized();
};
