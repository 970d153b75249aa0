// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "UObject/Class.h"

/** The outermost object: the types of a module ("/Script/<Module>") or an asset file ("/Game/..."). */
class COREUOBJECT_API UPackage : public UObject
{
public:
	static UClass* StaticClass();

	bool IsDirty() const { return bDirty; }

	void SetDirtyFlag(bool bIsDirty) { bDirty = bIsDirty; }

private:
	bool bDirty = false;
};
