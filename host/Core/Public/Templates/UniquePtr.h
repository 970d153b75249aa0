// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Templates/UnrealTemplate.h"

#include <memory>

/** The only owner of an object. */
template <typename T>
class TUniquePtr
{
public:
	TUniquePtr() = default;
	explicit TUniquePtr(T* InObject) : Object(InObject) {}

	template <typename OtherType>
	requires std::is_convertible_v<OtherType*, T*> TUniquePtr(TUniquePtr<OtherType>&& Other) : Object(Other.Release())
	{
	}

	bool IsValid() const { return Object != nullptr; }

	T* Get() const { return Object.get(); }

	T* operator->() const { return Get(); }

	T& operator*() const { return *Get(); }

	/** Gives the ownership to the caller. */
	T* Release() { return Object.release(); }

	void Reset() { Object.reset(); }

private:
	std::unique_ptr<T> Object;
};

template <typename T, typename... ArgTypes>
TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(std::forward<ArgTypes>(Args)...));
}
