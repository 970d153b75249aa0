// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Lookup tables of looks, between .cube files and look assets. docs/cube.md lists what is read.
#pragma once

#include "CoreMinimal.h"

/** A lookup table as a look keeps it; a plain value, empty for none. Any thread. */
struct FTonalithLookTable
{
	/** For people. */
	FString Title;

	/**
	 * Samples as floats of 16 bits: 216 kB for 33 samples a side, 1.6 MB for 65, never more than 13.3 MB (129 a side, and
	 * curves of 65,536 samples).
	 */
	TArray<uint8> Bytes;

	/**
	 * Reads the text of a .cube file.
	 * @param Text UTF-8
	 * @param OutFault why it cannot be read, in one line: where, what was expected, what stands there
	 * @return false, and the table as it was, when the text is none
	 */
	TONALITH_API bool Read(const TArray<uint8>& Text, FString& OutFault);
};
