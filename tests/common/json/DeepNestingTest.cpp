// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "GuardHeap.h"

#include "JsonText.h"

#include <gtest/gtest.h>
#include <kiln/JsonConversion.h>
#include <streambuf>

namespace
{
constexpr int Depth = 200'000;

/** Objects, but for every 20th level: an empty array is larger than an empty object by far. */
bool isArrayAt(int level)
{
	return level % 20 == 0;
}

template <class Element>
Element& innermostOf(Element& root, int depth)
{
	Element* innermost = &root;
	for (int level = 0; level < depth; ++level)
	{
		innermost = isArrayAt(level) ? &(*innermost)[0] : &(*innermost)["a"];
	}
	return *innermost;
}

/** [{"a" : {"a" : ... 1 ...}}] */
json::UnknownElement makeDeep(int depth)
{
	json::UnknownElement root;
	innermostOf(root, depth) = json::Number(1);
	return root;
}

TEST(DeepNesting, TreesAreCopiedComparedConvertedAndDestroyed)
{
	const long before = liveHeapObjects();
	{
		json::UnknownElement deep = makeDeep(Depth);
		rapidjson::Document document;
		{
			const json::UnknownElement copy = deep;
			EXPECT_TRUE(copy == deep);
			Kiln::toRapidJson(copy, document);
		}
		const json::UnknownElement converted = Kiln::toCajun(document);
		EXPECT_TRUE(converted == deep);
		innermostOf(deep, Depth) = json::Number(2);
		EXPECT_FALSE(converted == deep);
	}
	EXPECT_EQ(liveHeapObjects(), before);
}

TEST(DeepNesting, WritingEndsWhenTheStreamFails)
{
	struct Full : std::streambuf
	{
	} buffer;
	std::ostream stream(&buffer);
	// All of the text would be some forty gigabytes.
	json::Writer::Write(makeDeep(Depth), stream);
	EXPECT_TRUE(stream.bad());
}

TEST(DeepNesting, TextIsParsed)
{
	std::string opening;
	std::string closing;
	for (int level = 0; level < Depth; ++level)
	{
		opening += isArrayAt(level) ? "[" : "{\"a\":";
		closing += isArrayAt(Depth - 1 - level) ? "]" : "}";
	}
	const rapidjson::Document document = parse(opening + "1" + closing);
	ASSERT_FALSE(document.HasParseError());
	EXPECT_EQ(innermostOf<const rapidjson::Value>(document, Depth).GetInt(), 1);

	const rapidjson::Document cut = parse(opening);
	EXPECT_TRUE(cut.HasParseError());
	EXPECT_EQ(cut.GetErrorOffset(), opening.size());
}
} // namespace
