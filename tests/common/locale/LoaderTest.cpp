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
	EXPECT_EQ(load("\xEF\xBB\xBF"
				   R"({"A.b": "1", "n": [1e999, "x"], "A": {"b": "2", "C": {"": "\u00fc\u0000"}}, "A": 3})"),
		(StringTable{{"A.b", "2"}, {"A.C.", std::string("\xC3\xBC\0", 3)}}));
	EXPECT_EQ(error, "");
}

TEST_F(StringFile, ThatIsBadAddsNothingAndTellsWhere)
{
	EXPECT_EQ(load("{\n\t\"a\": \"b\",\n}"), StringTable());
	EXPECT_EQ(error, path + ":3:1: Missing a name for object member.");
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

TEST(FolderLoader, AddsWhatServesToTheTable)
{
	const TemporaryFolder folder;
	write(folder / "table_en-US.json", R"({"hello": "Hello"})");
	write(folder / "table_sv.json", "{");
	FolderLoader loader(folder.path, "table");
	StringTable table{{"kept", "1"}};
	EXPECT_EQ(&loader.load(table, "sv"), &table);
	EXPECT_EQ(loader.error(), folder / "table_sv.json:1:2: Missing a name for object member.");
	EXPECT_EQ(loader.load(table, "fr"), (StringTable{{"kept", "1"}, {"hello", "Hello"}}));
	EXPECT_EQ(loader.error() + loader.requestedLocale(), "fr");
}
} // namespace
