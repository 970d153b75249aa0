// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cajun/json/elements.h>
#include <cmath>
#include <random>
#include <string>

/**
 * A tree of all kinds, some levels deep: texts of any byte, names of up to three bytes, whole numbers of up to 53 bits and
 * others of any size.
 */
class RandomTree
{
public:
	explicit RandomTree(unsigned seed) : random_(seed) {}

	json::UnknownElement make(int depth = 4)
	{
		switch (below(depth > 0 ? 7 : 5))
		{
		case 0:
			return json::Null();
		case 1:
			return json::Boolean(below(2) == 0);
		case 2:
			return json::String(text(20));
		case 3:
			return json::Number(std::ldexp(static_cast<double>(random_()) - 2e9, below(22)));
		case 4:
			return json::Number(std::ldexp(static_cast<double>(random_()) / 3, below(1900) - 1000));
		case 5:
		{
			json::Array array;
			for (int count = below(6); count > 0; --count)
			{
				array.Insert(make(depth - 1));
			}
			return array;
		}
		default:
			return makeObject(depth);
		}
	}

	json::Object makeObject(int depth)
	{
		json::Object object;
		for (int count = below(20); count > 0; --count)
		{
			object[text(3)] = make(depth - 1);
		}
		return object;
	}

private:
	std::string text(int mostBytes)
	{
		std::string bytes(static_cast<std::size_t>(below(mostBytes + 1)), '\0');
		for (char& byte : bytes)
		{
			byte = static_cast<char>(below(256));
		}
		return bytes;
	}

	int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

	std::mt19937 random_;
};
