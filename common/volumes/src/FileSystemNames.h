// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <kiln/VolumeInfo.h>
#include <string>

namespace Kiln
{
/** What a file system is by the name that the platform gives it, case ignored; unknown for any name not in the table. */
FileSystemType fileSystemOf(const std::string& name);
} // namespace Kiln
