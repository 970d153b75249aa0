// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Rights and attributes of files. Paths are UTF-8. All functions are safe on any thread.
#pragma once

#include <cstdint>
#include <string>

namespace Kiln
{
/**
 * Whether this process's user has the rights to a file or folder by its security descriptor.
 * @param desiredAccess the platform's access mask, generic rights included
 * @return false also when the file is missing or its descriptor cannot be read
 */
bool hasAccess(const std::string& path, std::uint32_t desiredAccess);

/**
 * Sets a file's attributes by the long form of its path ("\\?\"), which passes the limit of 260 characters.
 * @param path of up to 32,000 characters or so; made absolute first
 * @param attributes the platform's FILE_ATTRIBUTE_ bits, which replace all that were set
 * @return whether they were set
 */
bool setFileAttributesLong(const std::string& path, std::uint32_t attributes);

/** The name of the user that runs this process; empty when the system cannot tell. */
std::string currentUserName();
} // namespace Kiln
