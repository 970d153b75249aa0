// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Hashes of simple types; others bring a GetTypeHash of their own beside them.
#pragma once

#include "HAL/Platform.h"

#include <functional>
#include <type_traits>

template <typename T>
requires std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_pointer_v<T> uint32 GetTypeHash(T Value)
{
	const std::size_t Hash = std::hash<T>()(Value);
	return static_cast<uint32>(Hash ^ (Hash >> 32));
}
