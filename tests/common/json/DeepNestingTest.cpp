// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "GuardHeap.h"

#include "JsonText.h"

#include <gtest/gtest.h>
#include <streambuf>

namespace
{
constexpr int Depth = 200'000;

json::UnknownElement& innermostOf(json::UnknownElement& root)
{
	json::UnknownElement* innermost = &root;
	for (int level = 0; level < Depth; ++level)
	{
		// An empty array is larger than an empty object by far, so few of them.
		innermost = level % 20 == 0 ? &(*innermost)[0] : &(*innermost)["a"];
	}
	return *innermost;
}

/** [{"a" : {"a" : ... 1 ...}}] */
json::UnknownElement makeDeep()
{
	json::UnknownElement root;
	innermostOf(root) = json::Number(1);
	return root;
}

TEST(DeepNesting, TreesAreCopiedComparedConvertedAndDestroyed)
{
	const long before = liveHeapObjects();
	{
		json::UnknownElement deep = makeDeep();
		rapidjson::Document document;
		{
			const json::UnknownElement copy = deep;
			EXPECT_TRUE(copy == deep);
			Kiln::toRapidJson(copy, document);
		}
		const json::UnknownElement converted = Kiln::toCajun(document);
		EXPECT_TRUE(converted == deep);
		innermostOf(deep) = json::Number(2);
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
	json::Writer::Write(makeDeep(), stream);
	EXPECT_TRUE(stream.bad());
}

} // namespace
