// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/FileChoice.h>

using namespace Kiln::Locale;

namespace
{
struct Row
{
	const char* why;
	std::vector<std::string> files;
	const char* request;
	const char* file;
	const char* locale;
	Match match;
};

const Row Rows[] = {
	{"no files", {}, "fr", "", "", Match::none},
	{"no file serves", {"table_de.json"}, "fr", "", "", Match::none},
	{"exact, whatever follows", {"table_fr.json", "table_fr-CA.json"}, "fr", "table_fr.json", "fr", Match::exact},
	{"exact, with region", {"table_fr.json", "table_fr-CA.json"}, "fr-CA", "table_fr-CA.json", "fr-ca", Match::exact},
	{"case and separators do not count", {"TABLE_PT_br.JSON"}, "pt-BR", "TABLE_PT_br.JSON", "pt_br", Match::exact},
	{"language, the region is another", {"table_en-US.json", "table_fr-CA.json"}, "fr", "table_fr-CA.json", "fr-ca",
		Match::language},
	{"the last of a language", {"table_de-AT.json", "table_de-CH.json"}, "de", "table_de-CH.json", "de-ch",
		Match::language},
	{"in the order of the listing", {"table_de-CH.json", "table_de-AT.json"}, "de", "table_de-AT.json", "de-at",
		Match::language},
	{"the first with the variant", {"table_sr-a-latn.json", "table_sr-b-latn.json", "table_sr-c.json"}, "sr-x-latn",
		"table_sr-a-latn.json", "sr-a-latn", Match::language},
	{"an earlier one without it is replaced", {"table_sr-a.json", "table_sr-b-latn.json", "table_sr-c.json"},
		"sr-x-latn", "table_sr-b-latn.json", "sr-b-latn", Match::language},
	{"an exact match behind a fixed one", {"table_sr-a-latn.json", "table_sr-x-latn.json"}, "sr-x-latn",
		"table_sr-x-latn.json", "sr-x-latn", Match::exact},
	{"English as the fall-back", {"table_de.json", "table_en-US.json"}, "fi", "table_en-US.json", "en-US",
		Match::english},
	{"English by its language first", {"table_en-AU.json", "table_en-US.json"}, "en-GB", "table_en-US.json", "en-US",
		Match::english},
	{"in either order", {"table_en-us.json", "table_en-ZA.json"}, "en", "table_en-us.json", "en-US", Match::english},
	{"English without the American file", {"table_en-AU.json", "table_en-ZA.json"}, "en-GB", "table_en-ZA.json",
		"en-za", Match::language},
	{"American English asked for", {"table_en-US.json"}, "EN_us", "table_en-US.json", "en-us", Match::exact},
	{"the last American file", {"table_en-US-a.json", "table_en-US-b.json"}, "fi", "table_en-US-b.json", "en-US",
		Match::english},
	{"a language before English", {"table_en-US.json", "table_fr-CA.json"}, "fr-FR", "table_fr-CA.json", "fr-ca",
		Match::language},
	{"three parts, by hyphens", {"table_ca.json", "table_ca-ES-valencia.json"}, "ca-es-valencia",
		"table_ca-ES-valencia.json", "ca-es-valencia", Match::exact},
	{"three parts, by underscores", {"table_ca.json", "table_ca-ES-valencia.json"}, "ca_ES_valencia",
		"table_ca-ES-valencia.json", "ca-es-valencia", Match::exact},
	{"variants compare whole", {"table_de-DE-a-b.json", "table_de-DE-a.json"}, "de-DE-a-b", "table_de-DE-a-b.json",
		"de-de-a-b", Match::exact},
	{"other names are no candidates",
		{"fr.json", "xtable_fr.json", "table_fr.txt", "table_fr.json.bak", "tablefr.json"}, "fr", "", "", Match::none},
	{"only the hyphen ends a part", {"table_fr.CA.json"}, "fr", "", "", Match::none},
	{"an empty request", {"table_.json", "table_en-US.json"}, "", "table_.json", "", Match::exact},
	{"separators only", {"table_.json"}, "---", "table_.json", "", Match::language},
};
} // namespace

TEST(FileChoice, FollowsItsRules)
{
	for (const Row& row : Rows)
	{
		const FileChoice choice = chooseFile(row.files, "Table", row.request);
		EXPECT_EQ(choice.file, row.file) << row.why;
		EXPECT_EQ(choice.locale, row.locale) << row.why;
		EXPECT_EQ(choice.match, row.match) << row.why;
	}
}

TEST(FileChoice, TakesOddNames)
{
	EXPECT_EQ(chooseFile({"fr.json", "table_fr.json"}, "", "fr").file, "fr.json");
	EXPECT_EQ(chooseFile({"table_fr.json"}, "table", std::string(10000, 'x')).match, Match::none);
	EXPECT_EQ(chooseFile({"table_fr.json"}, "table", std::string(10000, '-')).match, Match::none);
	EXPECT_EQ(chooseFile({"table_\xC3\x84.json"}, "table", "\xC3\xA4").match, Match::exact);
}
