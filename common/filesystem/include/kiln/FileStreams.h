// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// File streams by UTF-8 path: the standard ones take a narrow path for the system's code page and miss the file.
// A stream that cannot be opened comes back failed, as from its constructor; nothing is thrown.
#pragma once

#include <fstream>
#include <string>

namespace Kiln
{
/** Opens a file for reading. */
std::ifstream openInput(const std::string& path, std::ios::openmode mode = std::ios::in);

/** Opens a file for writing, and creates it where it is missing. */
std::ofstream openOutput(const std::string& path, std::ios::openmode mode = std::ios::out);
} // namespace Kiln
