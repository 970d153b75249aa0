// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "RandomTree.h"

#include <cajun/json/writer.h>
#include <gtest/gtest.h>
#include <istream>
#include <kiln/BufferedInputStream.h>
#include <kiln/DeserializableRapidJson.h>
#include <kiln/JsonConversion.h>
#include <kiln/StringStreamBuf.h>
#include <rapidjson/error/error.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <sstream>
#include <stdexcept>
#include <string>

namespace
{
constexpr std::size_t BlockSize = 16384;

rapidjson::Document parse(std::istream& stream)
{
	rapidjson::Document document;
	Kiln::DeserializableRapidJson reader;
	EXPECT_EQ(&reader.parse(document, stream), &document);
	return document;
}

rapidjson::Document parse(std::string_view text)
{
	Kiln::StringStreamBuf buffer(text);
	std::istream stream(&buffer);
	return parse(stream);
}

TEST(BufferedInputStream, GivesEveryByteOnceAndNulsAtTheEnd)
{
	for (const std::size_t size :
		{std::size_t(0), std::size_t(1), BlockSize - 1, BlockSize, BlockSize + 1, 3 * BlockSize})
	{
		std::string text(size, '\0');
		for (std::size_t at = 0; at < size; ++at)
		{
			text[at] = static_cast<char>('A' + at % 50);
		}
		std::istringstream stream(text);
		Kiln::BufferedInputStream input(stream);
		std::string read;
		while (input.Peek() != '\0')
		{
			ASSERT_EQ(input.Tell(), read.size());
			read += input.Take();
		}
		EXPECT_EQ(read, text);
		EXPECT_EQ(input.Take(), '\0');
		EXPECT_EQ(input.Take(), '\0');
		EXPECT_EQ(input.Peek(), '\0');
	}
}

TEST(Parse, WrittenTreesReadBack)
{
	for (unsigned seed = 0; seed < 40; ++seed)
	{
		// Texts of any byte are no JSON: control characters are written as they are.
		rapidjson::Document document;
		Kiln::toRapidJson(RandomTree(seed).makeObject(4), document);
		rapidjson::StringBuffer text;
		rapidjson::Writer<rapidjson::StringBuffer> writer(text);
		document.Accept(writer);
		const rapidjson::Document back = parse({text.GetString(), text.GetSize()});
		ASSERT_FALSE(back.HasParseError()) << "seed " << seed << " at " << back.GetErrorOffset();
		EXPECT_EQ(Kiln::toCajun(back), Kiln::toCajun(document)) << "seed " << seed;
	}
	json::Object object;
	for (int number = 0; number < 2000; ++number)
	{
		object["number " + std::to_string(number)] = json::Number(1e10 / (number + 1));
		object["text " + std::to_string(number)][3] = json::String("\xC3\xBC\t\"\\\n");
	}
	std::stringstream stream;
	json::Writer::Write(object, stream);
	EXPECT_EQ(Kiln::toCajun(parse(stream)), object);
}

TEST(Parse, WhiteSpaceAroundTheTextIsSkipped)
{
	const std::string space(2 * BlockSize, ' ');
	EXPECT_TRUE(parse(space + "\t\r\n{}\n" + space).IsObject());
}

TEST(Parse, EveryTextCutShortIsAnErrorAtItsEnd)
{
	const std::string text = R"( {"name" : [1.5, -2e3, true, false, null, "\u00fc\\", {}, []], "x" : {"y" : ""} })";
	ASSERT_FALSE(parse(text).HasParseError());
	for (std::size_t length = 0; length < text.size(); ++length)
	{
		const rapidjson::Document document = parse(std::string_view(text).substr(0, length));
		EXPECT_TRUE(document.HasParseError()) << length;
		EXPECT_LE(document.GetErrorOffset(), length);
		EXPECT_TRUE(document.IsNull());
	}
}

TEST(Parse, BadTextIsAnErrorWhereItStands)
{
	using namespace std::string_literals;
	struct Case
	{
		std::string text;
		rapidjson::ParseErrorCode code;
		std::size_t offset;
	};
	const Case table[] = {
		{"", rapidjson::kParseErrorDocumentEmpty, 0},
		{" \n", rapidjson::kParseErrorDocumentEmpty, 2},
		{"\0"s, rapidjson::kParseErrorValueInvalid, 0},
		{"{}\0"s, rapidjson::kParseErrorDocumentRootNotSingular, 2},
		{"{}\0{}"s, rapidjson::kParseErrorDocumentRootNotSingular, 2},
		{"{} {}", rapidjson::kParseErrorDocumentRootNotSingular, 3},
		{"\xEF\xBB\xBF{}", rapidjson::kParseErrorValueInvalid, 0},
		{R"(["\uD800"])", rapidjson::kParseErrorStringUnicodeSurrogateInvalid, 2},
		{R"(["\uD800\u0041"])", rapidjson::kParseErrorStringUnicodeSurrogateInvalid, 2},
		{"[1e999]", rapidjson::kParseErrorNumberTooBig, 1},
		{std::string(BlockSize, ' ') + "{,}", rapidjson::kParseErrorObjectMissName, BlockSize + 1},
	};
	for (const Case& bad : table)
	{
		const rapidjson::Document document = parse(bad.text);
		EXPECT_EQ(document.GetParseError(), bad.code) << bad.text;
		EXPECT_EQ(document.GetErrorOffset(), bad.offset) << bad.text;
	}
	EXPECT_TRUE(parse("[\"a\0b\"]"s).HasParseError());
	EXPECT_STREQ(parse(R"(["\uDC00"])")[0].GetString(), "\xED\xB0\x80") << "passed on";
}

TEST(Parse, AStreamThatFailedIsEmptyText)
{
	for (const std::ios::iostate state : {std::ios::failbit, std::ios::badbit, std::ios::eofbit})
	{
		std::istringstream stream("{}");
		stream.setstate(state);
		EXPECT_EQ(parse(stream).GetParseError(), rapidjson::kParseErrorDocumentEmpty);
	}
}

/** Breaks down after some blocks. */
class BreakingBuffer : public std::stringbuf
{
public:
	using std::stringbuf::stringbuf;

protected:
	std::streamsize xsgetn(char* to, std::streamsize count) override
	{
		if (++blocks_ > 2)
		{
			throw std::runtime_error("disk removed");
		}
		return std::stringbuf::xsgetn(to, count);
	}

private:
	int blocks_ = 0;
};

TEST(Parse, AStreamThatFailsUnderWayIsTextCutShort)
{
	const std::string text = "[\"" + std::string(5 * BlockSize, 'x') + "\"]";
	BreakingBuffer buffer(text);
	std::istream stream(&buffer);
	const rapidjson::Document document = parse(stream);
	EXPECT_EQ(document.GetParseError(), rapidjson::kParseErrorStringMissQuotationMark);
	EXPECT_TRUE(stream.bad());

	BreakingBuffer another(text);
	std::istream throwing(&another);
	throwing.exceptions(std::ios::badbit);
	EXPECT_THROW(parse(throwing), std::runtime_error);
}
} // namespace
