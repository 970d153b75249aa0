// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The dynamic array. Bad indices are fatal; so is changing an array inside a ranged-for over it, where the
// engine only reports it.
#pragma once

#include "Misc/AssertionMacros.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <vector>

/** Leaves elements that are made without arguments default-initialised: simple types stay uninitialised. */
template <typename T>
struct TDefaultInitAllocator : std::allocator<T>
{
	TDefaultInitAllocator() = default;
	template <typename U>
	TDefaultInitAllocator(const TDefaultInitAllocator<U>&) noexcept
	{
	}

	void construct(T* Place) { ::new (static_cast<void*>(Place)) T; }
};

/** What a ranged-for walks with: knows how many elements there were at its start. */
template <typename ArrayType, typename ElementType>
struct TRangedForIterator
{
	const ArrayType& Array;
	ElementType* Element;
	const int32 InitialNum = Array.Num();

	ElementType& operator*() const { return *Element; }

	void operator++() { ++Element; }

	bool operator!=(const TRangedForIterator& End) const
	{
		const int32 CurrentNum = Array.Num();
		checkf(CurrentNum == InitialNum, TEXT("Array has changed during ranged-for iteration!"));
		return Element != End.Element;
	}
};

template <typename ElementType>
class TArray
{
	static_assert(!std::is_same_v<ElementType, bool>, "Packed bits have no addresses; use uint8.");

public:
	TArray() = default;
	TArray(std::initializer_list<ElementType> Elements) : Storage(Elements) {}

	int32 Num() const { return static_cast<int32>(Storage.size()); }

	bool IsEmpty() const { return Storage.empty(); }

	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }

	ElementType* GetData() { return Storage.data(); }

	const ElementType* GetData() const { return Storage.data(); }

	ElementType& operator[](int32 Index)
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	const ElementType& operator[](int32 Index) const { return const_cast<TArray&>(*this)[Index]; }

	ElementType& Last() { return (*this)[Num() - 1]; }

	const ElementType& Last() const { return (*this)[Num() - 1]; }

	/** @return the new element's index */
	int32 Add(ElementType Element)
	{
		Storage.push_back(std::move(Element));
		return Num() - 1;
	}

	template <typename... ArgTypes>
	ElementType& Emplace_GetRef(ArgTypes&&... Args)
	{
		return Storage.emplace_back(std::forward<ArgTypes>(Args)...);
	}

	/** Keeps the order of the others. */
	void RemoveAt(int32 Index)
	{
		RangeCheck(Index);
		Storage.erase(Storage.begin() + Index);
	}

	/** Removes all elements equal to the given one. @return how many */
	int32 Remove(ElementType Element) { return static_cast<int32>(std::erase(Storage, Element)); }

	/** Removes all elements that the predicate accepts. @return how many */
	template <typename Predicate>
	int32 RemoveAll(Predicate Pred)
	{
		return static_cast<int32>(std::erase_if(Storage, Pred));
	}

	/** Anything that elements can be compared with. */
	template <typename ComparisonType>
	bool Contains(const ComparisonType& Item) const
	{
		return FindByKey(Item) != nullptr;
	}

	template <typename Predicate>
	bool ContainsByPredicate(Predicate Pred) const
	{
		return FindByPredicate(Pred) != nullptr;
	}

	/** The first match, or null; valid until the array changes. */
	template <typename Predicate>
	ElementType* FindByPredicate(Predicate Pred)
	{
		const auto Found = std::find_if(Storage.begin(), Storage.end(), Pred);
		return Found == Storage.end() ? nullptr : &*Found;
	}

	template <typename KeyType>
	const ElementType* FindByKey(const KeyType& Key) const
	{
		return FindByPredicate([&Key](const ElementType& Element) { return Element == Key; });
	}

	template <typename Predicate>
	const ElementType* FindByPredicate(Predicate Pred) const
	{
		return const_cast<TArray*>(this)->FindByPredicate(Pred);
	}

	/** New elements of simple types hold whatever was in memory. */
	void SetNumUninitialized(int32 NewNum) { Storage.resize(static_cast<size_t>(NewNum)); }

	/** Removes all and gives the memory back. */
	void Empty() { Storage = {}; }

	friend bool operator==(const TArray& A, const TArray& B) { return A.Storage == B.Storage; }

	auto begin() { return TRangedForIterator<TArray, ElementType>{*this, GetData()}; }

	auto begin() const { return TRangedForIterator<TArray, const ElementType>{*this, GetData()}; }

	auto end() { return TRangedForIterator<TArray, ElementType>{*this, GetData() + Num()}; }

	auto end() const { return TRangedForIterator<TArray, const ElementType>{*this, GetData() + Num()}; }

private:
	void RangeCheck(int32 Index) const
	{
		checkf(IsValidIndex(Index), TEXT("Array index out of bounds: %lld into an array of size %lld"),
			static_cast<long long>(Index), static_cast<long long>(Num()));
	}

	std::vector<ElementType, TDefaultInitAllocator<ElementType>> Storage;
};
