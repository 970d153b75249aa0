// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Drives by letter. Paths are UTF-8. All functions are safe on any thread.
#pragma once

#include <string>

namespace Kiln
{
/** The number of the path's drive, 0 for A to 25 for Z; -1 for a path without a drive letter. */
int driveNumber(const std::string& path);

/** The root of a drive, as "C:\"; empty unless the number is one of 0 to 25. */
std::string driveRoot(int number);

/** The path under which the drive's device is opened, as "\\.\C:"; empty unless the number is one of 0 to 25. */
std::string devicePath(int number);

/**
 * Takes the drive of the path out of use, so that its medium can be removed: locks the volume, dismounts it, and ejects
 * the medium where the device can. A volume in use is tried 20 times, 500 ms apart; the call blocks as long.
 * @return 1 when the volume was dismounted; 0 when it could not be opened, locked or dismounted, or is a network's;
 *         a negative number for a path without a drive letter
 */
int ejectDrive(const std::string& path);
} // namespace Kiln
