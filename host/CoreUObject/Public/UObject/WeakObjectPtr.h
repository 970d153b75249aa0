// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A pointer that knows when its object died.
#pragma once

#include "UObject/Object.h"

class FWeakObjectPtr
{
public:
	FWeakObjectPtr() = default;

	FWeakObjectPtr(const UObject* InObject) : Object(InObject ? InObject->Watched : nullptr) {}

	/** Null when the object is dead or garbage. */
	UObject* Get() const
	{
		UObject* const Found = Object.lock().get();
		return Found && !Found->IsGarbage() ? Found : nullptr;
	}

private:
	std::weak_ptr<UObject> Object;
};
