// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "JsonText.h"
#include "SystemFunction.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <rapidjson/error/error.h>
#include <stdexcept>

namespace
{
using namespace std::string_literals;

constexpr std::size_t BlockSize = 16384;

TEST(Parse, NumbersAreTheNearestThatThereAre)
{
	// The one that is linked into Windows programs is not exact.
	const auto toDouble = systemFunction(&std::strtod, "strtod");
	const std::string zeros(400, '0');
	for (const std::string& number :
		{"0"s, "-0"s, "1e-324"s, "-1e-325"s, "3e-324"s, "0e-23"s, "-0e99"s, "0e999"s, "0." + zeros,
			"0." + zeros + "1E+401", "0.000000000000000000000001e-325"s, "1" + zeros + "e-300",
			"1" + zeros + "e-99999999999999999999", "1e-99999999999999999999"s, "0." + zeros + "1e99999999999999999999",
			"1" + zeros, "2e308"s, "-1e309"s, "1e00308"s, "1.7976931348623158e308"s, "1.7976931348623159e308"s,
			"2.2250738585072011e-308"s, "-9223372036854775808"s, "-9223372036854775809"s, "18446744073709551615"s,
			"18446744073709551616"s, "9007199254740993"s, "9007199254740993.0"s})
	{
		const double expected = toDouble(number.c_str(), nullptr);
		const rapidjson::Document document = parse("[1, " + number + "]");
		if (std::isinf(expected))
		{
			EXPECT_EQ(document.GetParseError(), rapidjson::kParseErrorNumberTooBig) << number;
			EXPECT_EQ(document.GetErrorOffset(), 4u);
			continue;
		}
		ASSERT_FALSE(document.HasParseError()) << number;
		const rapidjson::Value& value = document[1];
		if (value.IsInt64() || value.IsUint64())
		{
			EXPECT_EQ(value.IsInt64() ? std::to_string(value.GetInt64()) : std::to_string(value.GetUint64()),
				number == "-0" ? "0" : number);
			continue;
		}
		EXPECT_EQ(std::bit_cast<std::uint64_t>(value.GetDouble()), std::bit_cast<std::uint64_t>(expected)) << number;
	}
}

TEST(Parse, BadTextIsAnErrorWhereItStands)
{
	struct Case
	{
		std::string text;
		rapidjson::ParseErrorCode code;
		std::size_t offset;
	};
	const Case table[] = {
		{"", rapidjson::kParseErrorDocumentEmpty, 0},
		{"{}\0"s, rapidjson::kParseErrorDocumentRootNotSingular, 2},
		{"\xEF\xBB\xBF{}", rapidjson::kParseErrorValueInvalid, 0},
		{R"(["\uD800\u0041"])", rapidjson::kParseErrorStringUnicodeSurrogateInvalid, 2},
		{"[1 , 01e999]", rapidjson::kParseErrorArrayMissCommaOrSquareBracket, 6},
		{"[12345678901234567.]", rapidjson::kParseErrorNumberMissFraction, 19},
		{"[0.12345678901234567x]", rapidjson::kParseErrorArrayMissCommaOrSquareBracket, 20},
		{std::string(BlockSize, ' ') + "\t\r\n{,}", rapidjson::kParseErrorObjectMissName, BlockSize + 4},
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
