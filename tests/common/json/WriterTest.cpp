// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "JsonText.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iomanip>
#include <locale>

namespace
{
TEST(Writer, LaysOutOneMemberALine)
{
	const char* const text = R"({"te\txt":"x","none":null,"list":[1,{"deep":true,"no":false},{}],"last":[]})";
	EXPECT_EQ(textOf(tree(text)), "{\n"
								  "\t\"te\\txt\" : \"x\",\n"
								  "\t\"none\" : null,\n"
								  "\t\"list\" : [\n"
								  "\t\t1,\n"
								  "\t\t{\n"
								  "\t\t\t\"deep\" : true,\n"
								  "\t\t\t\"no\" : false\n"
								  "\t\t},\n"
								  "\t\t{}\n"
								  "\t],\n"
								  "\t\"last\" : []\n"
								  "}");
}

TEST(Writer, EscapesSevenBytesInTextsAndNames)
{
	std::string every;
	std::string expected;
	for (int number = 0; number < 256; ++number)
	{
		const char byte = static_cast<char>(number);
		every += byte;
		const std::size_t at = std::string("\b\t\n\f\r\"\\").find(byte);
		expected += at == std::string::npos ? std::string(1, byte) : std::string("\\") + "btnfr\"\\"[at];
	}
	const std::string plain(10'000, 'x');
	EXPECT_EQ(textOf(json::String(every + plain)), "\"" + expected + plain + "\"");
}

TEST(Writer, TakesThePrecisionOfNumbersOrTheFewestDigits)
{
	EXPECT_EQ(textOf(json::Number(0.1 + 0.2)), "0.30000000000000004");
	EXPECT_EQ(textOf(json::Number(HUGE_VAL)) + textOf(json::Number(std::nan(""), 5)), "nullnull");
	EXPECT_EQ(textOf(json::Number(2.0 / 3, 3)) + textOf(json::Number(0.5, 5000)), "0.6670.5");
}

TEST(Writer, NeitherObeysNorChangesTheStreamsFormat)
{
	struct DecimalComma : std::numpunct<char>
	{
		char do_decimal_point() const override { return ','; }
		char do_thousands_sep() const override { return '.'; }
		std::string do_grouping() const override { return "\3"; }
	};
	const std::locale comma(std::locale::classic(), new DecimalComma);
	const std::locale global = std::locale::global(comma);
	std::ostringstream stream;
	stream << std::hex << std::fixed << std::showpos << std::setprecision(2) << std::setfill('*') << std::setw(40);
	json::Writer::Write(tree("[1234567.5,30000]"), stream);
	EXPECT_EQ(stream.str(), "[\n\t1234567.5,\n\t30000\n]");
	stream.str("");
	stream << 1234567.75;
	EXPECT_EQ(stream.str(), std::string(27, '*') + "+1.234.567,75");
	std::locale::global(global);
}
} // namespace
