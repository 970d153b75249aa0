// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

/** Whoever adds to menus, by its address. */
struct FToolMenuOwner
{
	FToolMenuOwner() = default;
	FToolMenuOwner(void* InPointer) : Pointer(InPointer) {}

	/** The owners in force, the innermost one last. */
	TOOLMENUS_API static TArray<FToolMenuOwner>& Stack();

	/** The innermost one; unset when there is none. */
	static FToolMenuOwner Current() { return Stack().IsEmpty() ? FToolMenuOwner() : Stack().Last(); }

	bool IsSet() const { return Pointer != nullptr; }

	bool operator==(const FToolMenuOwner&) const = default;

private:
	void* Pointer = nullptr;
};
