// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Shared ownership: TSharedPtr may be null, TSharedRef never is, TWeakPtr does not keep the object alive. Counting is safe
// between threads.
#pragma once

#include "Misc/AssertionMacros.h"

#include <concepts>
#include <memory>

/** Has no move operations: nothing may leave it null. */
template <class T>
class TSharedRef : public std::shared_ptr<T>
{
public:
	/** Of a pointer that is known not to be null. */
	explicit TSharedRef(const std::shared_ptr<T>& Object) : std::shared_ptr<T>(Object) {}
	TSharedRef(const TSharedRef&) = default;
	TSharedRef& operator=(const TSharedRef&) = default;

	template <class OtherType>
	requires std::convertible_to<OtherType*, T*> TSharedRef(const TSharedRef<OtherType>& Other)
		: std::shared_ptr<T>(Other)
	{
	}

	T& Get() const { return **this; }
};

template <class T>
class TSharedPtr : public std::shared_ptr<T>
{
public:
	using std::shared_ptr<T>::shared_ptr;
	TSharedPtr(const std::shared_ptr<T>& Object) : std::shared_ptr<T>(Object) {}

	bool IsValid() const { return this->get() != nullptr; }
	T* Get() const { return this->get(); }

	/** Fatal on null, like the dereferences. */
	[[nodiscard]] TSharedRef<T> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<T>(*this);
	}
	T* operator->() const
	{
		check(IsValid());
		return Get();
	}
	T& operator*() const { return *operator->(); }

	void Reset() { this->reset(); }
};

template <class T>
class TWeakPtr : public std::weak_ptr<T>
{
public:
	using std::weak_ptr<T>::weak_ptr;
	TWeakPtr(std::nullptr_t = nullptr) {}

	bool IsValid() const { return !this->expired(); }

	/** Null when the object is gone; keeps it alive otherwise. */
	TSharedPtr<T> Pin() const { return this->lock(); }
};

/** Takes over a new object. Fatal on null. */
template <class T>
[[nodiscard]] TSharedRef<T> MakeShareable(T* InObject)
{
	return TSharedPtr<T>(InObject).ToSharedRef();
}

template <class T, class... ArgTypes>
[[nodiscard]] TSharedRef<T> MakeShared(ArgTypes&&... Args)
{
	return MakeShareable(new T(std::forward<ArgTypes>(Args)...));
}

/** Unchecked; null stays null. */
template <class To, class From>
TSharedPtr<To> StaticCastSharedPtr(const TSharedPtr<From>& Pointer)
{
	return std::static_pointer_cast<To>(Pointer);
}

template <class To, class From>
TSharedRef<To> StaticCastSharedRef(const TSharedRef<From>& Ref)
{
	return TSharedRef<To>(std::static_pointer_cast<To>(Ref));
}

/** Lets an object find its own owners. */
template <class T>
class TSharedFromThis : public std::enable_shared_from_this<T>
{
public:
	/** Fatal while nothing owns the object, as in its constructor and destructor. */
	[[nodiscard]] TSharedRef<T> AsShared() { return TSharedPtr<T>(this->weak_from_this().lock()).ToSharedRef(); }
};
