// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Templates/UnrealTemplate.h"

#include <memory>

/** The only owner of an object. */
template <typename T>
class TUniquePtr : public std::unique_ptr<T>
{
public:
	using std::unique_ptr<T>::unique_ptr;

	bool IsValid() const { return this->get() != nullptr; }
	T* Get() const { return this->get(); }
	void Reset() { this->reset(); }
};

template <typename T, typename... ArgTypes>
TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(std::forward<ArgTypes>(Args)...));
}
