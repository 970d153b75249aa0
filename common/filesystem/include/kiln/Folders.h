// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Folders. Paths are UTF-8. All functions are safe on any thread.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Kiln
{
/** Creates a folder and those above it that are missing. @return whether the folder exists now */
bool createFolders(const std::string& path);

/**
 * The names, without paths, of all that is not a folder in a folder, ordered by their lower-case UTF-8 bytes; names that
 * differ in case alone by their own bytes. So the order is the same on every file system.
 * @return nothing when there is no such folder
 * @throws boost::filesystem::filesystem_error when the platform fails otherwise; what(), which is UTF-8, begins with
 *         the operation: "exists", "directory_iterator::directory_iterator" (also for a path that names a file) or
 *         "directory_iterator::operator++"
 */
std::optional<std::vector<std::string>> listFiles(const std::string& folder);
} // namespace Kiln
