// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The object array: every object has an index in it for life; weak pointers check index and serial number.
#pragma once

#include "CoreMinimal.h"

class UObject;

/** Whether the object system is up: false before the editor starts and after its objects were purged at exit. */
COREUOBJECT_API bool UObjectInitialized();

namespace HostObjects
{
/** From now on objects can be made; those of the types whose libraries are loaded already are. */
COREUOBJECT_API void Init();

/** Destroys all objects that are left; afterwards no object may be made. */
COREUOBJECT_API void Shutdown();

/** Enters an object and gives its index. */
int32 Add(UObject* Object);
void Remove(int32 Index);

/** The serial number of the index: a fresh one for each object that uses it. */
int32 SerialNumber(int32 Index);

/** The object, or null when it is dead, garbage, or another one lives at the index. */
UObject* Find(int32 Index, int32 SerialNumber);

/** The object of that name directly in the outer one, or null. */
UObject* FindByName(const UObject* Outer, FName Name);
} // namespace HostObjects
