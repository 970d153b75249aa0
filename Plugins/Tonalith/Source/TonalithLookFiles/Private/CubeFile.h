// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Files of lookup tables.
#pragma once

#include "TonalithLookTable.h"

/**
 * Reads a .cube file. Others may read it meanwhile.
 * @param OutFault why it cannot be read, in one line with the file's name
 * @return false, and the table as it was, when it cannot
 */
bool ReadCubeFile(const FString& Filename, FTonalithLookTable& OutTable, FString& OutFault);
