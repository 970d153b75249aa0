// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The classes of Tonalith, as the engine knows them.
#pragma once

#include "UObject/UObjectGlobals.h"

/** Null when the module that has the class is not loaded. @param Path such as "/Script/Tonalith.TonalithObject" */
inline UClass* FindTonalithClass(const TCHAR* Path)
{
	return FindObject<UClass>(nullptr, Path);
}

/** The class of looks. */
inline UClass* FindLookClass()
{
	return FindTonalithClass(TEXT("/Script/Tonalith.TonalithObject"));
}
