// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a user can take back: the last transaction. Edits in details views have their own way.
#pragma once

#include "HAL/Platform.h"

class UObject;

namespace HostTransactions
{
/** One at a time. @param bTransact whether anything is kept */
COREUOBJECT_API void Begin(bool bTransact);
COREUOBJECT_API void End();

/** Keeps a transactional object's properties as they are; nothing without a transaction. */
void Keep(UObject& Object);

/** Puts the objects back. @return false when there are none */
COREUOBJECT_API bool Undo();
} // namespace HostTransactions
