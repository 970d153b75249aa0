// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/Unicode.h>

namespace
{
TEST(Unicode, TextsConvertBothWaysAndWhatIsInvalidIsReplaced)
{
	const std::pair<std::string, std::wstring> rows[] = {
		{"", L""},
		{std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
		{"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xA8", L"\u00E4\u20AC\xD83C\xDFA8"},
	};
	for (const auto& [utf8, wide] : rows)
	{
		EXPECT_EQ(Kiln::toWide(utf8), wide);
		EXPECT_EQ(Kiln::toUtf8(wide), utf8);
	}
	EXPECT_EQ(Kiln::toWide("a\xFFz"), L"a\xFFFDz");
	EXPECT_EQ(Kiln::toUtf8(L"a\xD83Cz\xDFA8"), "a\xEF\xBF\xBDz\xEF\xBF\xBD");
}

TEST(Unicode, LowerCase)
{
	EXPECT_EQ(Kiln::lowerCase("TablE_I.\xC3\x84\xCE\xA3"), "table_i.\xC3\xA4\xCF\x83");
}
} // namespace
