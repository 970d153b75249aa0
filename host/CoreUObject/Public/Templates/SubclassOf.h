// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "UObject/Class.h"

/** A class of T or below it. */
template <class T>
class TSubclassOf
{
public:
	TSubclassOf() = default;
	TSubclassOf(UClass* InClass) : Class(InClass) {}

	operator UClass*() const { return Class; }

private:
	UClass* Class = nullptr;
};
