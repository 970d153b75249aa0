// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/FileChoice.h>

using namespace Kiln::Locale;

// All rules are held by the fuzzer, in ASCII.
TEST(FileChoice, FollowsItsRules)
{
	const std::vector<std::string> files = {
		"T\xC3\x84_de-AT.JSON", "t\xC3\xA4_de_CH.json", "t\xC3\xA4_en-us.json", "de.json"};
	const std::string prefix = "T\xC3\xA4";
	EXPECT_EQ(chooseFile(files, prefix, "de").file, files[1]) << "the last of a language";
	EXPECT_EQ(chooseFile(files, prefix, "de").locale, "de_ch");
	EXPECT_EQ(chooseFile(files, prefix, "DE_at").file, files[0]) << "exact, whatever follows";
	EXPECT_EQ(chooseFile(files, prefix, "fi").locale, "en-US") << "the fall-back";
	EXPECT_EQ(chooseFile(files, "other", "de").match, Match::none);
}
