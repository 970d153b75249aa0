// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/FileChoice.h>
#include <kiln/Unicode.h>
#include <sstream>

using namespace Kiln::Locale;

namespace
{
/** The locales of files by the prefix "table", and the one that is chosen of them. */
struct Row
{
	const char* why;
	const char* files;
	const char* request;
	std::string file;
	Match match;
};

TEST(FileChoice, FollowsItsRules)
{
	const Row rows[] = {
		{"no files", "", "fr", "", Match::none},
		{"no file serves", "de", "fr", "", Match::none},
		{"exact, whatever follows", "fr fr-CA", "fr", "fr", Match::exact},
		{"case and separators do not count", "PT_br", "pt-BR", "PT_br", Match::exact},
		{"language, the region is another", "en-US fr-CA", "fr", "fr-CA", Match::language},
		{"the last of a language", "de-AT de-CH", "de", "de-CH", Match::language},
		{"the first with the variant", "sr-a-latn sr-b-latn sr-c", "sr-x-latn", "sr-a-latn", Match::language},
		{"an earlier one is replaced", "sr-a sr-b-latn sr-c", "sr-x-latn", "sr-b-latn", Match::language},
		{"an exact match behind a fixed one", "sr-a-latn sr-x-latn", "sr-x-latn", "sr-x-latn", Match::exact},
		{"English as the fall-back", "de en-US", "fi", "en-US", Match::english},
		{"in either order", "en-us en-ZA", "en", "en-us", Match::english},
		{"English without the American file", "en-AU en-ZA", "en-GB", "en-ZA", Match::language},
		{"three parts, by underscores", "ca ca-ES-valencia", "ca_ES_valencia", "ca-ES-valencia", Match::exact},
		{"separators only", "en -", "---", "-", Match::language},
	};
	for (const Row& row : rows)
	{
		std::vector<std::string> files;
		std::istringstream list(row.files);
		for (std::string locale; list >> locale;)
		{
			files.push_back("TABLE_" + locale + ".JSON");
		}
		const FileChoice choice = chooseFile(files, "Table", row.request);
		EXPECT_EQ(choice.file, row.file.empty() ? "" : "TABLE_" + row.file + ".JSON") << row.why;
		EXPECT_EQ(choice.locale, row.match == Match::english ? "en-US" : Kiln::lowerCase(row.file)) << row.why;
		EXPECT_EQ(choice.match, row.match) << row.why;
	}
}

} // namespace
