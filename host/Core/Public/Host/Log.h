// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Where log lines go besides the devices of GLog's users.
#pragma once

#include "Containers/UnrealString.h"

namespace HostLog
{
/**
 * Writes all further lines to a new file, UTF-8 with byte-order mark and CRLF, flushed line by line; others may read it
 * meanwhile. Makes the folder when missing; the file before is closed. @return false when it cannot be written
 */
CORE_API bool OpenFile(const FString& Path);

/** Nothing without an open file. */
CORE_API void CloseFile();
} // namespace HostLog
