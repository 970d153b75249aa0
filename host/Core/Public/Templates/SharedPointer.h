// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Shared ownership: TSharedPtr may be null, TSharedRef never is, TWeakPtr does not keep the object alive. Counting is safe
// between threads.
#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"

#include <concepts>
#include <memory>

/** A pointer or reference whose object may be owned as T too. */
template <class PointerType, class T>
concept CSharedOwnerOf = std::convertible_to<decltype(std::declval<const PointerType&>().Std()), std::shared_ptr<T>>;

/** Has no move operations: nothing may leave it null. */
template <class T>
class TSharedRef
{
public:
	/** For TSharedPtr, which knows that it is not null. */
	explicit TSharedRef(std::shared_ptr<T> InObject) : Object(std::move(InObject)) {}

	TSharedRef(const TSharedRef&) = default;
	TSharedRef& operator=(const TSharedRef&) = default;

	template <class OtherType>
	requires std::convertible_to<OtherType*, T*> TSharedRef(const TSharedRef<OtherType>& Other) : Object(Other.Std()) {}

	T& Get() const { return *Object; }

	T* operator->() const { return Object.get(); }

	T& operator*() const { return *Object; }

	friend bool operator==(const TSharedRef& A, const TSharedRef& B) { return A.Object == B.Object; }

	/** For the other pointers. */
	const std::shared_ptr<T>& Std() const { return Object; }

private:
	std::shared_ptr<T> Object;
};

template <class T>
class TSharedPtr
{
public:
	TSharedPtr() = default;
	TSharedPtr(std::nullptr_t) {}
	explicit TSharedPtr(std::shared_ptr<T> InObject) : Object(std::move(InObject)) {}

	template <CSharedOwnerOf<T> PointerType>
	TSharedPtr(const PointerType& Other) : Object(Other.Std())
	{
	}

	bool IsValid() const { return Object != nullptr; }

	explicit operator bool() const { return IsValid(); }

	T* Get() const { return Object.get(); }

	/** Fatal on null, like the dereferences. */
	[[nodiscard]] TSharedRef<T> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<T>(Object);
	}

	T* operator->() const
	{
		check(IsValid());
		return Get();
	}

	T& operator*() const { return *operator->(); }

	void Reset() { Object.reset(); }

	friend bool operator==(const TSharedPtr& A, const TSharedPtr& B) { return A.Object == B.Object; }

	/** For the other pointers. */
	const std::shared_ptr<T>& Std() const { return Object; }

private:
	std::shared_ptr<T> Object;
};

template <class T>
class TWeakPtr
{
public:
	TWeakPtr() = default;
	TWeakPtr(std::nullptr_t) {}

	template <CSharedOwnerOf<T> PointerType>
	TWeakPtr(const PointerType& Pointer) : Object(Pointer.Std())
	{
	}

	bool IsValid() const { return !Object.expired(); }

	/** Null when the object is gone; keeps it alive otherwise. */
	TSharedPtr<T> Pin() const { return TSharedPtr<T>(Object.lock()); }

private:
	std::weak_ptr<T> Object;
};

/** Takes over a new object. Fatal on null. */
template <class T>
[[nodiscard]] TSharedRef<T> MakeShareable(T* InObject)
{
	return TSharedPtr<T>(std::shared_ptr<T>(InObject)).ToSharedRef();
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
	return TSharedPtr<To>(std::static_pointer_cast<To>(Pointer.Std()));
}

template <class To, class From>
TSharedRef<To> StaticCastSharedRef(const TSharedRef<From>& Ref)
{
	return TSharedRef<To>(std::static_pointer_cast<To>(Ref.Std()));
}

/** Lets an object find its own owners. */
template <class T>
class TSharedFromThis : public std::enable_shared_from_this<T>
{
public:
	/** Fatal while nothing owns the object, as in its constructor and destructor. */
	[[nodiscard]] TSharedRef<T> AsShared() { return TSharedPtr<T>(this->weak_from_this().lock()).ToSharedRef(); }
};
