// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

/** Whoever adds to menus. Equal only if both the value and its kind are equal. */
struct FToolMenuOwner
{
	FToolMenuOwner() = default;
	FToolMenuOwner(void* InPointer)
		: Value(static_cast<int64>(reinterpret_cast<intptr_t>(InPointer))), Kind(EKind::Pointer)
	{
	}

	bool IsSet() const { return Value != 0; }

	bool operator==(const FToolMenuOwner&) const = default;

private:
	enum class EKind : uint8
	{
		None,
		Pointer,
	};

	int64 Value = 0;
	EKind Kind = EKind::None;
};
