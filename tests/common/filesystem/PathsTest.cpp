// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/Paths.h>

namespace
{
TEST(Paths, Parts)
{
	struct Row
	{
		std::string path, parent, stem, pathAndStem, extension;
	};
	const Row rows[] = {
		{"", "", "", "", ""},
		{"C:\\a\\b.tar.gz", "C:\\a", "b.tar", "C:\\a\\b.tar", "gz"},
		{"C:\\b.txt", "C:\\", "b", "C:\\b", "txt"},
		{"C:b.txt", "C:", "b", "C:b", "txt"},
		{"a.b/c", "a.b", "c", "a.b/c", ""},
		{".profile.bak", "", ".profile", ".profile", "bak"},
		{"name.", "", "name", "name", ""},
		{"a/b/", "a/b", "", "a/b/", ""},
		{"C:\\", "C:\\", "", "C:\\", ""},
		{"\\\\server\\share\\f.x", "\\\\server\\share", "f", "\\\\server\\share\\f", "x"},
		{"\xC3\xBC/\xE2\x82\xAC.\xC3\xA4", "\xC3\xBC", "\xE2\x82\xAC", "\xC3\xBC/\xE2\x82\xAC", "\xC3\xA4"},
	};
	for (const Row& row : rows)
	{
		EXPECT_EQ(Kiln::parentOf(row.path), row.parent) << row.path;
		EXPECT_EQ(Kiln::stemOf(row.path), row.stem) << row.path;
		EXPECT_EQ(Kiln::stemOf(row.path, true), row.pathAndStem) << row.path;
		EXPECT_EQ(Kiln::extensionOf(row.path), row.extension) << row.path;
	}
}

TEST(Paths, AbsoluteFormIsOneForEachFile)
{
	const std::pair<const char*, const char*> rows[] = {
		{"C:\\a\\b", "C:\\a\\b"},
		{"C:/a//./x/../b/", "C:\\a\\b"},
		{"C:\\..\\..", "C:\\"},
		{"//server/share/a", "\\\\server\\share\\a"},
		{"\\\\?\\C:\\", "\\\\?\\C:\\"},
	};
	for (const auto& [path, absolute] : rows)
	{
		EXPECT_EQ(Kiln::absolutePath(path), absolute);
		EXPECT_EQ(Kiln::absolutePath(absolute), absolute);
	}
	const std::string current = Kiln::absolutePath(".");
	EXPECT_TRUE(current.size() >= 3 && current[1] == ':') << current;
	EXPECT_EQ(Kiln::parentOf(Kiln::absolutePath("\xC3\xBC x.log")), current);
	EXPECT_EQ(Kiln::absolutePath("/a"), current.substr(0, 2) + "\\a");
	EXPECT_EQ(Kiln::pathKey("C:/LOGS/\xC3\x9C.log"), Kiln::pathKey("c:\\x\\..\\logs\\\xC3\xBC.LOG"));
	EXPECT_NE(Kiln::pathKey("C:/a.log"), Kiln::pathKey("C:/b.log"));
}
} // namespace
