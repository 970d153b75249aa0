// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Failing.h"
#include "TemporaryFolder.h"
#include <kiln/FileDetails.h>
#include <kiln/FileInformation.h>
#include <limits>
#include <sstream>

namespace
{
TEST(FileSize, ForPeople)
{
	const std::pair<std::uint64_t, const char*> rows[] = {
		{0, "0 B"},
		{1, "1 B"},
		{999, "999 B"},
		{1'000, "1000 B"},
		{1'001, "1.0 kB"},
		{1'536'000, "1.5 MB"},
		{1'000'000, "1000.0 kB"},
		{1'000'001, "1.0 MB"},
		{2'500'000'000, "2.5 GB"},
		{7'000'000'000'000, "7.0 TB"},
		{7'000'000'000'000'000, "7.0 PB"},
		{std::numeric_limits<std::uint64_t>::max(), "18.4 EB"},
	};
	for (const auto& [bytes, text] : rows)
	{
		EXPECT_EQ(Kiln::formatFileSize(bytes), text);
	}
}

TEST(FileSize, OfFilesAndOfWhatIsNone)
{
	const TemporaryFolder folder;
	const std::string path = folder.file("\xE2\x82\xAC.bin", 1'001);
	EXPECT_EQ(Kiln::fileSize(path), 1'001u);
	EXPECT_EQ(Kiln::formatFileSize(path), "1.0 kB");
	EXPECT_EQ(Kiln::fileSize(folder.path), 0u);
	EXPECT_EQ(Kiln::fileSize(folder / "missing"), 0u);
	EXPECT_EQ(Kiln::formatFileSize(folder / "missing"), "0 B");
}

TEST(FileInformation, OfDeniedFilesIsZero)
{
	const TemporaryFolder folder;
	const std::string path = folder.file("file", 5);
	for (const DWORD error : {ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION, ERROR_NOT_READY})
	{
		const auto denied = failing("CreateFileW", &CreateFileW, error, INVALID_HANDLE_VALUE);
		EXPECT_EQ(Kiln::fileModificationTime(path), 0);
		EXPECT_EQ(Kiln::fileCreationTime(path), 0);
	}
	const auto denied = failing("GetFileAttributesExW", &GetFileAttributesExW, ERROR_ACCESS_DENIED);
	EXPECT_EQ(Kiln::fileSize(path), 0u);
}

TEST(FileDetails, DescribeOneFile)
{
	const TemporaryFolder folder;
	const std::string path = folder.file("\xC3\xBC.tar.gz", 1'536'000);
	const Kiln::FileDetails details(path);
	const auto text = [&](const char* name) { return static_cast<const json::String&>(details[name]).Value(); };
	const auto number = [&](const char* name) { return static_cast<const json::Number&>(details[name]).Value(); };
	std::vector<std::string> names;
	for (const auto& member : details)
	{
		names.push_back(member.name);
	}
	EXPECT_EQ(
		names, (std::vector<std::string>{"path", "extension", "filesize_human", "filesize", "modtime", "createTime"}));
	EXPECT_EQ(text("path"), path);
	EXPECT_EQ(text("extension"), "gz");
	EXPECT_EQ(text("filesize_human"), "1.5 MB");
	EXPECT_EQ(number("filesize"), 1'536'000);
	EXPECT_GT(number("modtime"), 1.7e9);
	EXPECT_EQ(number("modtime"), static_cast<double>(Kiln::fileModificationTime(path)));
	EXPECT_EQ(number("createTime"), static_cast<double>(Kiln::fileCreationTime(path)));
}

TEST(FileDetails, OfAMissingFileAsText)
{
	Kiln::FileDetails details("missing \"file\".txt");
	std::ostringstream out;
	EXPECT_TRUE(details.serialize(out));
	EXPECT_EQ(out.str(),
		"{\n\t\"path\" : \"missing \\\"file\\\".txt\",\n\t\"extension\" : \"txt\",\n\t\"filesize_human\" : \"0 B\",\n"
		"\t\"filesize\" : 0,\n\t\"modtime\" : 0,\n\t\"createTime\" : 0\n}");
}
} // namespace
