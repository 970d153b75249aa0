// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

/** Whoever adds to menus, by its address. */
struct FToolMenuOwner
{
	FToolMenuOwner() = default;
	FToolMenuOwner(void* InPointer) : Pointer(InPointer) {}

	bool IsSet() const { return Pointer != nullptr; }

	bool operator==(const FToolMenuOwner&) const = default;

private:
	void* Pointer = nullptr;
};
