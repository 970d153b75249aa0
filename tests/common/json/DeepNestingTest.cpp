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

/** Takes a number of bytes and no more. */
class CountingBuffer : public std::streambuf
{
public:
	explicit CountingBuffer(std::size_t most) : most_(most) {}

	std::size_t count = 0;

protected:
	std::streamsize xsputn(const char*, std::streamsize length) override
	{
		count += static_cast<std::size_t>(length);
		return count <= most_ ? length : 0;
	}
	int_type overflow(int_type) override { return traits_type::eof(); }

private:
	std::size_t most_;
};

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
	// All of the text would be ten gigabytes.
	constexpr std::size_t Most = 100'000;
	const json::UnknownElement deep = makeDeep(Depth / 2);
	CountingBuffer buffer(Most);
	std::ostream stream(&buffer);
	json::Writer::Write(deep, stream);
	EXPECT_TRUE(stream.bad());
	EXPECT_LT(buffer.count, 2 * Most);
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
