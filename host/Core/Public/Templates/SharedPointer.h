// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Shared ownership: TSharedPtr may be null, TSharedRef never is, TWeakPtr does not keep the object alive.
#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"

#include <memory>

/** Counting is safe between threads in both modes; the mode only keeps types apart. */
enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1
};

template <class T, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedRef;
template <class T, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedPtr;
template <class T, ESPMode Mode = ESPMode::ThreadSafe>
class TWeakPtr;
template <class T, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedFromThis;

template <class From, class To>
concept CPointerConvertibleTo = std::is_convertible_v<From*, To*>;

/** A new object on its way into its first owner. */
template <class T>
struct TRawPtrProxy
{
	T* Object;
};

template <class T>
[[nodiscard]] TRawPtrProxy<T> MakeShareable(T* InObject)
{
	return {InObject};
}

template <class T, ESPMode Mode>
class TSharedPtr
{
public:
	TSharedPtr() = default;
	TSharedPtr(std::nullptr_t) {}

	template <CPointerConvertibleTo<T> OtherType>
	TSharedPtr(const TRawPtrProxy<OtherType>& Proxy) : Object(Proxy.Object)
	{
	}

	template <CPointerConvertibleTo<T> OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other) : Object(Other.Object)
	{
	}

	template <CPointerConvertibleTo<T> OtherType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other) : Object(Other.Object)
	{
	}

	bool IsValid() const { return Object != nullptr; }

	explicit operator bool() const { return IsValid(); }

	T* Get() const { return Object.get(); }

	/** Fatal on null, like the dereferences. */
	[[nodiscard]] TSharedRef<T, Mode> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<T, Mode>(Object);
	}

	T* operator->() const
	{
		check(IsValid());
		return Get();
	}

	std::add_lvalue_reference_t<T> operator*() const
	{
		check(IsValid());
		return *Get();
	}

	void Reset() { Object.reset(); }

	bool IsUnique() const { return Object.use_count() == 1; }

	friend bool operator==(const TSharedPtr& A, const TSharedPtr& B) { return A.Get() == B.Get(); }

private:
	template <class, ESPMode>
	friend class TSharedRef;
	template <class, ESPMode>
	friend class TSharedPtr;
	template <class, ESPMode>
	friend class TWeakPtr;
	template <class, ESPMode>
	friend class TSharedFromThis;
	template <class To, class From, ESPMode OtherMode>
	friend TSharedPtr<To, OtherMode> StaticCastSharedPtr(const TSharedPtr<From, OtherMode>& Pointer);

	explicit TSharedPtr(std::shared_ptr<T> InObject) : Object(std::move(InObject)) {}

	std::shared_ptr<T> Object;
};

/** Has no move operations: nothing may leave it null. */
template <class T, ESPMode Mode>
class TSharedRef
{
public:
	TSharedRef(const TSharedRef&) = default;
	TSharedRef& operator=(const TSharedRef&) = default;

	template <CPointerConvertibleTo<T> OtherType>
	TSharedRef(const TRawPtrProxy<OtherType>& Proxy) : TSharedRef(TSharedPtr<T, Mode>(Proxy).ToSharedRef())
	{
	}

	template <CPointerConvertibleTo<T> OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other) : Object(Other.Object)
	{
	}

	T& Get() const { return *Object; }

	T* operator->() const { return Object.get(); }

	T& operator*() const { return *Object; }

	TSharedPtr<T, Mode> ToSharedPtr() const { return *this; }

	bool IsUnique() const { return Object.use_count() == 1; }

	friend bool operator==(const TSharedRef& A, const TSharedRef& B) { return &A.Get() == &B.Get(); }

private:
	template <class, ESPMode>
	friend class TSharedPtr;
	template <class, ESPMode>
	friend class TSharedRef;
	template <class, ESPMode>
	friend class TWeakPtr;

	explicit TSharedRef(std::shared_ptr<T> InObject) : Object(std::move(InObject)) {}

	std::shared_ptr<T> Object;
};

template <class T, ESPMode Mode>
class TWeakPtr
{
public:
	TWeakPtr() = default;
	TWeakPtr(std::nullptr_t) {}

	template <CPointerConvertibleTo<T> OtherType>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Pointer) : Object(Pointer.Object)
	{
	}

	template <CPointerConvertibleTo<T> OtherType>
	TWeakPtr(const TSharedRef<OtherType, Mode>& Ref) : Object(Ref.Object)
	{
	}

	template <CPointerConvertibleTo<T> OtherType>
	TWeakPtr(const TWeakPtr<OtherType, Mode>& Other) : Object(Other.Object)
	{
	}

	bool IsValid() const { return !Object.expired(); }

	/** Null when the object is gone; keeps it alive otherwise. */
	TSharedPtr<T, Mode> Pin() const { return TSharedPtr<T, Mode>(Object.lock()); }

	void Reset() { Object.reset(); }

private:
	template <class, ESPMode>
	friend class TWeakPtr;

	std::weak_ptr<T> Object;
};

template <class T, ESPMode Mode = ESPMode::ThreadSafe, class... ArgTypes>
[[nodiscard]] TSharedRef<T, Mode> MakeShared(ArgTypes&&... Args)
{
	return MakeShareable(new T(std::forward<ArgTypes>(Args)...));
}

/** Unchecked; null stays null. */
template <class To, class From, ESPMode Mode>
TSharedPtr<To, Mode> StaticCastSharedPtr(const TSharedPtr<From, Mode>& Pointer)
{
	return TSharedPtr<To, Mode>(std::static_pointer_cast<To>(Pointer.Object));
}

template <class To, class From, ESPMode Mode>
TSharedRef<To, Mode> StaticCastSharedRef(const TSharedRef<From, Mode>& Ref)
{
	return StaticCastSharedPtr<To>(Ref.ToSharedPtr()).ToSharedRef();
}

/** Lets an object find its own owners. */
template <class T, ESPMode Mode>
class TSharedFromThis : public std::enable_shared_from_this<T>
{
public:
	/** Fatal while nothing owns the object, as in its constructor and destructor. */
	[[nodiscard]] TSharedRef<T, Mode> AsShared()
	{
		return TSharedPtr<T, Mode>(this->weak_from_this().lock()).ToSharedRef();
	}

	[[nodiscard]] TSharedRef<const T, Mode> AsShared() const
	{
		return TSharedPtr<const T, Mode>(this->weak_from_this().lock()).ToSharedRef();
	}

protected:
	TSharedFromThis() = default;

	/** The caller's this, with its own type. */
	template <class OtherType>
	[[nodiscard]] static TSharedRef<OtherType, Mode> SharedThis(OtherType* ThisPtr)
	{
		return StaticCastSharedRef<OtherType>(ThisPtr->AsShared());
	}
};
