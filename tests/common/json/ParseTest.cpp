// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "JsonText.h"

#include <gtest/gtest.h>
#include <rapidjson/error/error.h>
#include <stdexcept>
#include <tuple>

namespace
{
using namespace std::string_literals;

constexpr std::size_t BlockSize = 16384;

TEST(Parse, BadTextIsAnErrorWhereItStands)
{
	const std::tuple<std::string, rapidjson::ParseErrorCode, std::size_t> table[] = {
		{"", rapidjson::kParseErrorDocumentEmpty, 0},
		{"{}\0"s, rapidjson::kParseErrorDocumentRootNotSingular, 2},
		{"\xEF\xBB\xBF{}", rapidjson::kParseErrorValueInvalid, 0},
		{R"(["\uD800\u0041"])", rapidjson::kParseErrorStringUnicodeSurrogateInvalid, 2},
		{"[1, 1e309]", rapidjson::kParseErrorNumberTooBig, 4},
		{"[0.1456789012345674567890123456780e-334-8]", rapidjson::kParseErrorArrayMissCommaOrSquareBracket, 39},
		{std::string(BlockSize, ' ') + "\t\r\n{,}", rapidjson::kParseErrorObjectMissName, BlockSize + 4},
	};
	for (const auto& [text, code, offset] : table)
	{
		const rapidjson::Document document = parse(text);
		EXPECT_EQ(document.GetParseError(), code) << text;
		EXPECT_EQ(document.GetErrorOffset(), offset) << text;
	}
	const std::string digits = "184467440737095516155";
	const rapidjson::Document twice =
		parse("[" + digits + "," + std::string(BlockSize - digits.size() - 1, ' ') + digits + "]");
	EXPECT_EQ(twice[0], twice[1]) << "at the same place of two blocks";
	EXPECT_TRUE(parse("[\"a\0b\"]"s).HasParseError());
	EXPECT_STREQ(parse(R"(["\uDC00"])")[0].GetString(), "\xED\xB0\x80") << "passed on";
}

TEST(Parse, AStreamThatFailsIsTextCutShort)
{
	/** Breaks down after some blocks. */
	struct Breaking : std::stringbuf
	{
		using std::stringbuf::stringbuf;
		std::streamsize xsgetn(char* to, std::streamsize count) override
		{
			return ++blocks > 2 ? throw std::runtime_error("disk removed") : std::stringbuf::xsgetn(to, count);
		}
		int blocks = 0;
	};
	const std::string text = "[\"" + std::string(5 * BlockSize, 'x') + "\"]";
	Breaking buffer(text);
	std::istream stream(&buffer);
	EXPECT_EQ(parse(stream).GetParseError(), rapidjson::kParseErrorStringMissQuotationMark);
	EXPECT_TRUE(stream.bad());
	EXPECT_EQ(parse(stream).GetParseError(), rapidjson::kParseErrorDocumentEmpty) << "nothing more is read";
}
} // namespace
