// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The hash map. The keys' GetTypeHash is found beside them.
#pragma once

#include "Containers/Array.h"
#include "Templates/TypeHash.h"

#include <unordered_map>

template <typename KeyType, typename ValueType>
class TMap
{
public:
	/** Replaces the value when the key is known. @return the value's place in the map */
	ValueType& Add(const KeyType& Key, ValueType Value)
	{
		return Pairs.insert_or_assign(Key, std::move(Value)).first->second;
	}

	/** Adds a default value for an unknown key. */
	ValueType& FindOrAdd(const KeyType& Key) { return Pairs[Key]; }

	/** Null for an unknown key. */
	ValueType* Find(const KeyType& Key)
	{
		const auto Found = Pairs.find(Key);
		return Found == Pairs.end() ? nullptr : &Found->second;
	}

	const ValueType* Find(const KeyType& Key) const { return const_cast<TMap*>(this)->Find(Key); }

	/** A copy, or a default value for an unknown key. */
	ValueType FindRef(const KeyType& Key) const
	{
		const ValueType* Value = Find(Key);
		return Value ? *Value : ValueType();
	}

	bool Contains(const KeyType& Key) const { return Pairs.contains(Key); }

	/** @return how many pairs were removed: 0 or 1 */
	int32 Remove(const KeyType& Key)
	{
		// Out of the map before it dies: its destructor may ask the map.
		return Pairs.extract(Key) ? 1 : 0;
	}

	/** In no particular order. */
	void GenerateKeyArray(TArray<KeyType>& OutArray) const
	{
		OutArray.Empty();
		for (const auto& [Key, Value] : Pairs)
		{
			OutArray.Add(Key);
		}
	}

	/** Pairs of key and value, in no particular order. */
	auto begin() { return Pairs.begin(); }

	auto end() { return Pairs.end(); }

private:
	struct FHash
	{
		std::size_t operator()(const KeyType& Key) const { return GetTypeHash(Key); }
	};

	std::unordered_map<KeyType, ValueType, FHash> Pairs;
};
