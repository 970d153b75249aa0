// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The dynamic array. Bad indices are fatal; changing an array inside a ranged-for over it is reported once.
#pragma once

#include "Containers/AllowShrinking.h"
#include "Misc/AssertionMacros.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <vector>

/** Leaves elements that are made without arguments default-initialised: simple types stay uninitialised. */
template <typename T>
struct TDefaultInitAllocator : std::allocator<T>
{
	template <typename U>
	struct rebind
	{
		using other = TDefaultInitAllocator<U>;
	};

	TDefaultInitAllocator() = default;
	template <typename U>
	TDefaultInitAllocator(const TDefaultInitAllocator<U>&) noexcept
	{
	}

	template <typename U>
	void construct(U* Place)
	{
		::new (static_cast<void*>(Place)) U;
	}

	template <typename U, typename... ArgTypes>
	void construct(U* Place, ArgTypes&&... Args)
	{
		std::construct_at(Place, std::forward<ArgTypes>(Args)...);
	}
};

/** What a ranged-for walks with: knows how many elements there were at its start. */
template <typename ArrayType, typename ElementType>
class TRangedForIterator
{
public:
	TRangedForIterator(const ArrayType& InArray, ElementType* InElement)
		: Array(&InArray), Element(InElement), StartNum(InArray.Num())
	{
	}

	ElementType& operator*() const { return *Element; }

	TRangedForIterator& operator++()
	{
		++Element;
		return *this;
	}

	friend bool operator!=(const TRangedForIterator& A, const TRangedForIterator& B)
	{
		const int32 CurrentNum = A.Array->Num();
		const int32 InitialNum = A.StartNum;
		ensureMsgf(CurrentNum == InitialNum, TEXT("Array has changed during ranged-for iteration!"));
		return A.Element != B.Element;
	}

private:
	const ArrayType* Array;
	ElementType* Element;
	int32 StartNum;
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

	const ElementType& operator[](int32 Index) const
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	ElementType& Last() { return (*this)[Num() - 1]; }

	const ElementType& Last() const { return (*this)[Num() - 1]; }

	/** @return the new element's index, as the next one does */
	int32 Add(const ElementType& Element) { return Emplace(Element); }

	int32 Add(ElementType&& Element) { return Emplace(std::move(Element)); }

	template <typename... ArgTypes>
	ElementType& Emplace_GetRef(ArgTypes&&... Args)
	{
		return (*this)[Emplace(std::forward<ArgTypes>(Args)...)];
	}

	template <typename... ArgTypes>
	int32 Emplace(ArgTypes&&... Args)
	{
		Storage.emplace_back(std::forward<ArgTypes>(Args)...);
		return Num() - 1;
	}

	/** Keeps the order of the others. */
	void RemoveAt(int32 Index, EAllowShrinking = EAllowShrinking::Yes)
	{
		RangeCheck(Index);
		Storage.erase(Storage.begin() + Index);
	}

	/** Fills the hole with the last element. */
	void RemoveAtSwap(int32 Index, EAllowShrinking = EAllowShrinking::Yes)
	{
		RangeCheck(Index);
		if (Index != Num() - 1)
		{
			Storage[static_cast<size_t>(Index)] = std::move(Storage.back());
		}
		Storage.pop_back();
	}

	/** Removes all elements equal to the given one, which may lie in this array. @return how many */
	int32 Remove(const ElementType& Element)
	{
		const ElementType Value = Element;
		return static_cast<int32>(std::erase(Storage, Value));
	}

	/** @return INDEX_NONE when there is none, as the next but one does */
	int32 Find(const ElementType& Element) const
	{
		return IndexOfByPredicate([&Element](const ElementType& Other) { return Other == Element; });
	}

	bool Contains(const ElementType& Element) const { return Find(Element) != INDEX_NONE; }

	template <typename Predicate>
	int32 IndexOfByPredicate(Predicate Pred) const
	{
		const auto Found = std::find_if(Storage.begin(), Storage.end(), Pred);
		return Found == Storage.end() ? INDEX_NONE : static_cast<int32>(Found - Storage.begin());
	}

	template <typename Predicate>
	bool ContainsByPredicate(Predicate Pred) const
	{
		return IndexOfByPredicate(Pred) != INDEX_NONE;
	}

	/** The first match, or null; valid until the array changes. */
	template <typename Predicate>
	ElementType* FindByPredicate(Predicate Pred)
	{
		const int32 Index = IndexOfByPredicate(Pred);
		return Index == INDEX_NONE ? nullptr : GetData() + Index;
	}

	template <typename Predicate>
	const ElementType* FindByPredicate(Predicate Pred) const
	{
		return const_cast<TArray*>(this)->FindByPredicate(Pred);
	}

	/** New elements of simple types hold whatever was in memory. */
	void SetNumUninitialized(int32 NewNum, EAllowShrinking = EAllowShrinking::Yes)
	{
		Storage.resize(static_cast<size_t>(NewNum));
	}

	void Reserve(int32 Number) { Storage.reserve(static_cast<size_t>(Number)); }

	/** Removes all and gives the memory back. */
	void Empty() { Storage = {}; }

	/** Removes all and keeps the memory. */
	void Reset() { Storage.clear(); }

	friend bool operator==(const TArray& A, const TArray& B) { return A.Storage == B.Storage; }

	auto begin() { return TRangedForIterator<TArray, ElementType>(*this, GetData()); }

	auto begin() const { return TRangedForIterator<TArray, const ElementType>(*this, GetData()); }

	auto end() { return TRangedForIterator<TArray, ElementType>(*this, GetData() + Num()); }

	auto end() const { return TRangedForIterator<TArray, const ElementType>(*this, GetData() + Num()); }

private:
	void RangeCheck(int32 Index) const
	{
		checkf(Index >= 0 && Index < Num(), TEXT("Array index out of bounds: %lld into an array of size %lld"),
			static_cast<long long>(Index), static_cast<long long>(Num()));
	}

	std::vector<ElementType, TDefaultInitAllocator<ElementType>> Storage;
};
