// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "JsonText.h"
#include "SystemFunction.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <rapidjson/error/error.h>
#include <stdexcept>

namespace
{
constexpr std::size_t BlockSize = 16384;

/** Legal numbers that are often got wrong. */
std::vector<std::string> oddNumbers()
{
	const std::string zeros(400, '0');
	return {"0", "-0", "1e-324", "-1e-325", "3e-324", "0e-23", "-0e99", "0e999", "0." + zeros, "0." + zeros + "1E+401",
		"0.000000000000000000000001e-325", "1" + zeros + "e-300", "1" + zeros + "e-99999999999999999999",
		"1e-99999999999999999999", "0." + zeros + "1e99999999999999999999", "1" + zeros, "2e308", "-1e309", "1e00308",
		"1.7976931348623158e308", "1.7976931348623159e308", "2.2250738585072011e-308", "-9223372036854775808",
		"-9223372036854775809", "18446744073709551615", "18446744073709551616", "9007199254740993",
		"9007199254740993.0"};
}

/** A legal number of few digits or up to a thousand; one in four lies half-way between two doubles, or nearly. */
std::string randomNumber(std::mt19937_64& random)
{
	const auto below = [&](unsigned limit) { return static_cast<unsigned>(random() % limit); };
	const auto digits = [&](unsigned count)
	{
		std::string made;
		for (const bool isSparse = below(3) == 0; count > 0; --count)
		{
			made += static_cast<char>('0' + (isSparse && below(20) ? 0 : below(10)));
		}
		return made;
	};
	const std::string sign = below(2) ? "-" : "";
	if (below(4) == 0)
	{
		const long double lower = std::bit_cast<double>(random() >> below(64) & 0x7FDFFFFFFFFFFFFF);
		const long double upper = std::nextafter(static_cast<double>(lower), 1e308);
		char text[1100];
		std::snprintf(text, sizeof text, "%.*Le", static_cast<int>(below(2) ? 1000 : below(30)), (lower + upper) / 2);
		return sign + text;
	}
	const unsigned most = below(8) ? 22 : 1000;
	const std::string whole = below(3) ? std::to_string(1 + below(9)) + digits(below(most)) : "0";
	const std::string exponent = std::to_string(static_cast<int>(below(801)) - 400);
	return sign + whole + (below(3) ? "." + digits(1 + below(most)) : "") + (below(2) ? "e" + exponent : "");
}

TEST(Parse, NumbersAreTheNearestThatThereAre)
{
	// The one that is linked into Windows programs is not exact.
	const auto toDouble = systemFunction(&std::strtod, "strtod");
	std::mt19937_64 random(20261114);
	std::vector<std::string> numbers = oddNumbers();
	while (numbers.size() < 40'000)
	{
		numbers.push_back(randomNumber(random));
	}
	std::string list = "[true";
	std::vector<std::string> listed;
	for (const std::string& number : numbers)
	{
		if (std::isinf(toDouble(number.c_str(), nullptr)))
		{
			const rapidjson::Document document = parse("[1, " + number + "]");
			EXPECT_EQ(document.GetParseError(), rapidjson::kParseErrorNumberTooBig) << number;
			EXPECT_EQ(document.GetErrorOffset(), 4u);
			continue;
		}
		list += "," + number;
		listed.push_back(number);
	}
	const rapidjson::Document document = parse(list + "]");
	ASSERT_FALSE(document.HasParseError()) << list.substr(document.GetErrorOffset(), 1100);
	for (rapidjson::SizeType at = 0; at < listed.size(); ++at)
	{
		const std::string& number = listed[at];
		const rapidjson::Value& value = document[at + 1];
		if (value.IsInt64() || value.IsUint64())
		{
			ASSERT_EQ(value.IsInt64() ? std::to_string(value.GetInt64()) : std::to_string(value.GetUint64()),
				number == "-0" ? "0" : number);
			continue;
		}
		const double expected = toDouble(number.c_str(), nullptr);
		EXPECT_EQ(std::bit_cast<std::uint64_t>(value.GetDouble()), std::bit_cast<std::uint64_t>(expected)) << number;
	}
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
