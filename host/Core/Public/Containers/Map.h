// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The hash map. Iteration follows the order of adding. Adding and removing move elements: no reference survives either.
#pragma once

#include "Templates/TypeHash.h"

#include <unordered_map>
#include <vector>

template <typename KeyType, typename ValueType>
struct TPair
{
	KeyType Key;
	ValueType Value;
};

template <typename KeyType, typename ValueType>
class TMap
{
public:
	int32 Num() const { return static_cast<int32>(Pairs.size()); }

	bool IsEmpty() const { return Pairs.empty(); }

	/** Replaces the value when the key is known. @return the value's place in the map, as the next two do */
	ValueType& Add(const KeyType& Key, const ValueType& Value) { return Emplace(Key, Value); }

	ValueType& Add(const KeyType& Key, ValueType&& Value) { return Emplace(Key, std::move(Value)); }

	template <typename... ArgTypes>
	ValueType& Emplace(const KeyType& Key, ArgTypes&&... Args)
	{
		ValueType Value(std::forward<ArgTypes>(Args)...);
		return FindOrAdd(Key) = std::move(Value);
	}

	/** Adds a default value for an unknown key. */
	ValueType& FindOrAdd(const KeyType& Key)
	{
		const auto [Entry, bIsNew] = Indices.try_emplace(Key, Pairs.size());
		if (bIsNew)
		{
			Pairs.push_back({Key, ValueType()});
		}
		return Pairs[Entry->second].Value;
	}

	/** Null for an unknown key. */
	ValueType* Find(const KeyType& Key)
	{
		const auto Entry = Indices.find(Key);
		return Entry == Indices.end() ? nullptr : &Pairs[Entry->second].Value;
	}

	const ValueType* Find(const KeyType& Key) const { return const_cast<TMap*>(this)->Find(Key); }

	/** A copy, or a default value for an unknown key. */
	ValueType FindRef(const KeyType& Key) const
	{
		const ValueType* Value = Find(Key);
		return Value ? *Value : ValueType();
	}

	bool Contains(const KeyType& Key) const { return Find(Key) != nullptr; }

	/** The key may lie in this map. @return how many pairs were removed: 0 or 1 */
	int32 Remove(const KeyType& Key)
	{
		const auto Entry = Indices.find(Key);
		if (Entry == Indices.end())
		{
			return 0;
		}
		const size_t Removed = Entry->second;
		Indices.erase(Entry);
		for (auto& [OtherKey, Index] : Indices)
		{
			Index -= Index > Removed ? 1 : 0;
		}
		// Out of the map before it dies: its destructor may ask the map.
		const auto Place = Pairs.begin() + static_cast<std::ptrdiff_t>(Removed);
		[[maybe_unused]] const TPair<KeyType, ValueType> Doomed = std::move(*Place);
		Pairs.erase(Place);
		return 1;
	}

	void Empty()
	{
		Indices.clear();
		Pairs.clear();
	}

	auto begin() { return Pairs.begin(); }

	auto begin() const { return Pairs.begin(); }

	auto end() { return Pairs.end(); }

	auto end() const { return Pairs.end(); }

private:
	struct FHash
	{
		std::size_t operator()(const KeyType& Key) const { return GetTypeHash(Key); }
	};

	std::vector<TPair<KeyType, ValueType>> Pairs;
	std::unordered_map<KeyType, std::size_t, FHash> Indices;
};
