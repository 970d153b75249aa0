// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

class UObject;

/** Opens assets for editing. */
class UAssetEditorSubsystem
{
public:
	/**
	 * Nulls and duplicates are dropped. Assets that are all of one class come to its type's actions in one call, others one
	 * by one; those of a class without actions would get the generic property editor.
	 */
	UNREALED_API static void OpenEditorForAssets(const TArray<UObject*>& Assets);
};
