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

/** Shows lines on standard output: Display and worse, or all of them. */
CORE_API void ShowOnStandardOutput(bool bAll);

/** Further lines carry time (UTC) and frame; those of the editor's first steps do not. */
CORE_API void StartTimeStamps();
} // namespace HostLog
