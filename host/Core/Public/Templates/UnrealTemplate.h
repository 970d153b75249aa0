// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>
#include <utility>

/** Like std::move, but refuses what cannot be moved. */
template <typename T>
constexpr std::remove_reference_t<T>&& MoveTemp(T&& Object) noexcept
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp on a temporary.");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp on a constant.");
	return static_cast<std::remove_reference_t<T>&&>(Object);
}
