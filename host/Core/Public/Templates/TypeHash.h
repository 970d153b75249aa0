// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The hash of pointers; other types bring a GetTypeHash of their own beside them.
#pragma once

#include "HAL/Platform.h"

#include <functional>

template <typename T>
uint32 GetTypeHash(T* Pointer)
{
	const std::size_t Hash = std::hash<T*>()(Pointer);
	return static_cast<uint32>(Hash ^ (Hash >> 32));
}
