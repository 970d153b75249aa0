// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Names made from other names, and new ones. Paths are UTF-8. All functions are safe on any thread.
#pragma once

#include <cstdint>
#include <string>

namespace Kiln
{
/**
 * The name of an image's variant for high-density displays: "@2x" before the extension, "a/b.png" to "a/b@2x.png".
 * False for an empty path, which leaves out as it is.
 */
bool retinaVariantName(const std::string& path, std::string& out);

/** The name of a file's variant for this platform: as retinaVariantName with "@win". */
bool platformVariantName(const std::string& path, std::string& out);

/**
 * A path in the system's temporary folder that no file is likely to have: "kln_", three groups of four random hexadecimal
 * digits joined by "_". Makes no file. Empty when there is no temporary folder.
 */
std::string uniqueTemporaryPath();

/** The same with an extension, which is given without its dot and may be empty. */
std::string uniqueTemporaryPath(const std::string& extension);

/**
 * A numbered variant of a path: "dir/scan.png" with number 7 and width 3 gives "dir/scan-007.png". A number that the name
 * ends in already gives way to the new one: "scan-12.png" by default gives "scan-1.png".
 * @param start the number
 * @param width at least so many digits, filled with zeros at the left; at most 255, the longest name of a file
 * @param skipExisting counts on from start to the first number whose name no file or folder has
 * @return false, with out as it is: for a path without a name, a greater width, and, with skipExisting, when the numbers
 *         run out or the platform cannot tell whether a name is taken
 */
bool numberedName(
	const std::string& path, std::string& out, std::uint64_t start = 1, unsigned width = 1, bool skipExisting = false);
} // namespace Kiln
