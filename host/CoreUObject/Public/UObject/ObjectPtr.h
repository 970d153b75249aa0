// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "UObject/Object.h"

/** A pointer to an object as a member of reflected types: 8 bytes, converts to a plain pointer. Owns nothing. */
template <class T>
class TObjectPtr
{
public:
	TObjectPtr() = default;
	TObjectPtr(std::nullptr_t) {}
	TObjectPtr(T* InObject) : Object(InObject) {}

	operator T*() const { return Object; }

	T* operator->() const { return Object; }

	T* Get() const { return Object; }

private:
	T* Object = nullptr;
};
