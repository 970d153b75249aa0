// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// All objects that live.
#pragma once

#include "CoreMinimal.h"

class UObject;

/** Whether the object system is up: false before the editor starts and after its objects were purged at exit. */
COREUOBJECT_API bool UObjectInitialized();

namespace HostObjects
{
/** From now on objects can be made; those of the types whose libraries are loaded already are. */
COREUOBJECT_API void Init() noexcept;

/** Destroys all objects that are left, the newest first; afterwards no object may be made. */
COREUOBJECT_API void Shutdown();

/** How many there are, garbage included. */
COREUOBJECT_API size_t Num();

void Add(UObject* Object);
void Remove(UObject* Object);

/** The object of that name directly in the outer one, or null. */
UObject* FindByName(const UObject* Outer, FName Name);
} // namespace HostObjects
