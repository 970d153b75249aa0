// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TemporaryFolder.h"

#include <kiln/FolderLoader.h>
#include <kiln/JSONLoader.h>

using namespace Kiln::Locale;

namespace
{
void write(const std::string& path, const std::string& text)
{
	Kiln::openOutput(path, std::ios::binary) << text;
}

class StringFile : public testing::Test
{
protected:
	StringTable load(const std::string& text)
	{
		write(path, text);
		StringTable table;
		JSONLoader loader(path);
		loader.load(table, "any");
		error = loader.error();
		return table;
	}

	const TemporaryFolder folder;
	const std::string path = folder / "t\xC3\xA4"
									  "ble.json";
	std::string error;
};

TEST_F(StringFile, IsFlattenedInTheOrderOfTheDocument)
{
	EXPECT_EQ(load(R"({"A": {"b": "1", "C": {"d": "2"}}, "A.b2": "3", "e": "4", "": {"f": "5"}, "g": {"": "6"}})"),
		(StringTable{{"A.b", "1"}, {"A.C.d", "2"}, {"A.b2", "3"}, {"e", "4"}, {"f", "5"}, {"g.", "6"}}));
	EXPECT_EQ(load(R"({"A.b": "1", "A": {"b": "2"}, "c": "3", "c": "4", "c": {"d": "5"}, "c": 6})"),
		(StringTable{{"A.b", "2"}, {"c", "4"}, {"c.d", "5"}}));
	EXPECT_EQ(
		load(
			R"({"n": 1e999, "t": true, "d": [-0e-23, 1, 2.5E+1], "x": "1e999", "z": null, "l": ["x", {"y": "z"}], "o": {}, "k": ""})"),
		(StringTable{{"x", "1e999"}, {"k", ""}}));
	EXPECT_EQ(load("\xEF\xBB\xBF {\"a\": \"\\u00fc\\u0000\"} \n"), (StringTable{{"a", std::string("\xC3\xBC\0", 3)}}));
	EXPECT_EQ(error, "");
}

TEST_F(StringFile, ThatIsBadAddsNothingAndTellsWhere)
{
	const struct
	{
		std::string text;
		const char* place;
	} rows[] = {
		{"", ":1:1: The document is empty."},
		{"[\"a\"]", ":1:1: The document root is not an object."},
		{"{\n\t\"a\": \"b\",\n}", ":3:1: Missing a name for object member."},
		{"{\"a\": \"\xFF\"}", ":1:8: Invalid encoding in string."},
		{"{\"a\": \"b\"} x", ":1:12: The document root must not be followed by other values."},
	};
	for (const auto& row : rows)
	{
		EXPECT_EQ(load(row.text), StringTable()) << row.text;
		EXPECT_EQ(error, path + row.place);
	}
	StringTable table{{"kept", "1"}};
	JSONLoader missing(folder / "missing.json");
	missing.load(table, "any");
	EXPECT_EQ(table, (StringTable{{"kept", "1"}}));
	EXPECT_EQ(missing.error(), folder / "missing.json: cannot be opened");
}

TEST_F(StringFile, MayBeNestedDeeperThanAStackIsLong)
{
	constexpr size_t depth = 200'000;
	std::string text;
	for (size_t level = 0; level < depth; ++level)
	{
		text += "{\"\":";
	}
	EXPECT_EQ(load(text + "\"x\"" + std::string(depth, '}')), (StringTable{{"", "x"}}));
	EXPECT_EQ(load(text), StringTable());
	EXPECT_NE(error, "");
}

TEST(FolderLoader, LoadsTheFileThatServes)
{
	const TemporaryFolder folder;
	write(folder / "table_en-US.json", R"({"hello": "Hello"})");
	write(folder / "table_fr-CA.json", R"({"hello": "Bonjour"})");
	Kiln::createFolders(folder / "table_fr.json");

	FolderLoader loader(folder.path, "table");
	StringTable table;
	EXPECT_EQ(&loader.load(table, "fr"), &table);
	EXPECT_EQ(table, (StringTable{{"hello", "Bonjour"}}));
	EXPECT_EQ(loader.requestedLocale(), "fr");
	EXPECT_EQ(loader.load(table, "sv"), (StringTable{{"hello", "Hello"}}));

	write(folder / "table_sv.json", "{");
	loader.load(table, "sv");
	EXPECT_EQ(table, (StringTable{{"hello", "Hello"}}));
	EXPECT_EQ(loader.error(), folder / "table_sv.json:1:2: Missing a name for object member.");
	boost::filesystem::remove(Kiln::widePath(folder / "table_en-US.json"));
	loader.load(table, "fi");
	EXPECT_EQ(loader.error(), "") << "no file serves";
}

} // namespace
