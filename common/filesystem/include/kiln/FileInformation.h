// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the file system knows about a file. Paths are UTF-8. A file that is missing, locked or denied gives 0 and never an
// exception. All functions are safe on any thread.
#pragma once

#include <cstdint>
#include <string>

namespace Kiln
{
/** The size in bytes; 0 for a folder. */
std::uint64_t fileSize(const std::string& path);

/**
 * A size for people, in units of 1000: 999 gives "999 B", 1000 "1000 B", 1001 "1.0 kB", 1536000 "1.5 MB". The decimal
 * point is that of the C locale in force.
 */
std::string formatFileSize(std::uint64_t bytes);

/** The size of the file at the path, for people; "0 B" when there is none. */
std::string formatFileSize(const std::string& path);

/**
 * The time of the last modification of a file or folder, in seconds since the epoch (1970-01-01 00:00 UTC), the same in
 * summer and winter; 0 for earlier times, and for later ones than the platform tells apart (the year 30828). The C library's zone must be the system's, as it is unless the environment
 * variable TZ says otherwise.
 */
std::int64_t fileModificationTime(const std::string& path);

/** The time at which the file or folder was created; everything else as fileModificationTime. */
std::int64_t fileCreationTime(const std::string& path);
} // namespace Kiln
