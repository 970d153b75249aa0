// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Serialization/Archive.h"

class IFileManager
{
public:
	CORE_API static IFileManager& Get();

	/** Others may read the file meanwhile, but not write it. @return the caller's; null when it cannot be opened so */
	CORE_API FArchive* CreateFileReader(const TCHAR* Filename);
};
