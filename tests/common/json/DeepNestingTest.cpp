// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "GuardHeap.h"

#include <cajun/json/writer.h>
#include <gtest/gtest.h>
#include <istream>
#include <kiln/DeserializableRapidJson.h>
#include <kiln/JsonConversion.h>
#include <kiln/StringStreamBuf.h>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace
{
constexpr int Depth = 1'000'000;

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

TEST(DeepNesting, TextIsWrittenWithAllItsIndentation)
{
	constexpr std::size_t Levels = 2000;
	const json::UnknownElement deep = makeDeep(Levels);
	CountingBuffer buffer(std::size_t(-1));
	std::ostream stream(&buffer);
	json::Writer::Write(deep, stream);
	EXPECT_TRUE(stream.good());
	// Each level: a bracket and a newline on both sides and the indentation; in objects the name; then the 1.
	constexpr std::size_t Arrays = Levels / 20;
	EXPECT_EQ(buffer.count, Levels * 4 + Levels * Levels + (Levels - Arrays) * 6 + 1);
}

TEST(DeepNesting, WritingEndsWhenTheStreamFails)
{
	// All of the text would be ten gigabytes.
	constexpr std::size_t Most = 100'000;
	const json::UnknownElement deep = makeDeep(Depth / 10);
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
	const auto parse = [](rapidjson::Document& document, std::string_view text)
	{
		Kiln::StringStreamBuf buffer(text);
		std::istream stream(&buffer);
		Kiln::DeserializableRapidJson().parse(document, stream);
	};
	rapidjson::Document document;
	parse(document, opening + "1" + closing);
	ASSERT_FALSE(document.HasParseError());
	EXPECT_EQ(innermostOf<const rapidjson::Value>(document, Depth).GetInt(), 1);

	rapidjson::Document cut;
	parse(cut, opening);
	EXPECT_TRUE(cut.HasParseError());
	EXPECT_EQ(cut.GetErrorOffset(), opening.size());
}
} // namespace
