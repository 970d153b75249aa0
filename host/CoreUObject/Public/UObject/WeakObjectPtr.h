// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A pointer that knows when its object died.
#pragma once

#include "UObject/Object.h"

class FWeakObjectPtr
{
public:
	FWeakObjectPtr() = default;

	FWeakObjectPtr(const UObject* Object) { *this = Object; }

	COREUOBJECT_API FWeakObjectPtr& operator=(const UObject* Object);

	/** Null when the object is dead or garbage. */
	COREUOBJECT_API UObject* Get() const;

	bool IsValid() const { return Get() != nullptr; }

	void Reset() { *this = FWeakObjectPtr(); }

private:
	int32 ObjectIndex = -1;
	int32 ObjectSerialNumber = 0;
};
