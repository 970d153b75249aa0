// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/Unicode.h>

namespace
{
TEST(Unicode, TextsConvertBothWays)
{
	const std::pair<std::string, std::wstring> rows[] = {
		{"", L""},
		{"plain", L"plain"},
		{std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
		{"\xC3\xA4\xE2\x82\xAC", L"\u00E4\u20AC"},
		{"\xF0\x9F\x8E\xA8", L"\xD83C\xDFA8"},
	};
	for (const auto& [utf8, wide] : rows)
	{
		EXPECT_EQ(Kiln::toWide(utf8), wide);
		EXPECT_EQ(Kiln::toUtf8(wide), utf8);
	}
}

TEST(Unicode, InvalidInputIsReplaced)
{
	const char* const invalid[] = {"a\xFFz", "a\xC3z", "a\x80z", "a\xED\xA0\x80z", "a\xF0\x9F\x8Ez", "a\xC0\xAFz"};
	for (const std::string text : invalid)
	{
		const std::wstring wide = Kiln::toWide(text);
		ASSERT_GE(wide.size(), 3u);
		EXPECT_EQ(wide.front(), L'a');
		EXPECT_EQ(wide.back(), L'z');
		EXPECT_EQ(wide.find_first_not_of(L'\xFFFD', 1), wide.size() - 1) << text;
	}
	EXPECT_EQ(Kiln::toUtf8(L"a\xD83Cz"), "a\xEF\xBF\xBDz");
	EXPECT_EQ(Kiln::toUtf8(L"a\xDFA8"), "a\xEF\xBF\xBD");
}

TEST(Unicode, LowerCase)
{
	EXPECT_EQ(Kiln::lowerCase(""), "");
	EXPECT_EQ(Kiln::lowerCase("Table_EN-us.JSON"), "table_en-us.json");
	EXPECT_EQ(Kiln::lowerCase("\xC3\x84\xCE\xA3"), "\xC3\xA4\xCF\x83");
	EXPECT_EQ(Kiln::lowerCase("I"), "i");
}
} // namespace
