// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The base of all engine objects. The object array owns them: they die by CollectGarbage or at the editor's exit.
#pragma once

#include "UObject/UObjectBase.h"

class COREUOBJECT_API UObject
{
public:
	UObject();
	virtual ~UObject();
	UObject(const UObject&) = delete;
	UObject& operator=(const UObject&) = delete;

	/** Weak pointers give null from now on; the next collection destroys the object. */
	void MarkAsGarbage() { bIsGarbage = true; }

	bool IsGarbage() const { return bIsGarbage; }

	int32 GetUniqueID() const { return InternalIndex; }

private:
	int32 InternalIndex;
	bool bIsGarbage = false;
};

/** Destroys all objects that are marked as garbage. */
COREUOBJECT_API void CollectGarbage();
