// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "UObject/Class.h"

/** All classes below the given one, in no particular order. */
COREUOBJECT_API void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results);
