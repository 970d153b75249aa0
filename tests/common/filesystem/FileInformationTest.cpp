// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TemporaryFolder.h"
#include <cajun/json/writer.h>
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

TEST(FileDetails, DescribeOneFile)
{
	const TemporaryFolder folder;
	const std::string path = folder.file("\xC3\xBC.tar.gz", 1'536'000);
	const std::string modified = std::to_string(Kiln::fileModificationTime(path));
	const std::string created = std::to_string(Kiln::fileCreationTime(path));
	EXPECT_GT(modified, "1700000000");
	const std::pair<std::string, std::string> rows[] = {
		{path, "\"gz\",\n\t\"filesize_human\" : \"1.5 MB\",\n\t\"filesize\" : 1536000,\n\t\"modtime\" : " + modified +
				   ",\n\t\"createTime\" : " + created + "\n}"},
		{"missing.txt", "\"txt\",\n\t\"filesize_human\" : \"0 B\",\n\t\"filesize\" : 0,\n\t\"modtime\" : 0,\n"
						"\t\"createTime\" : 0\n}"},
	};
	for (const auto& [file, rest] : rows)
	{
		std::ostringstream quoted;
		json::Writer::Write(json::String(file), quoted);
		std::ostringstream out;
		EXPECT_TRUE(Kiln::FileDetails(file).serialize(out));
		EXPECT_EQ(out.str(), "{\n\t\"path\" : " + quoted.str() + ",\n\t\"extension\" : " + rest);
	}
	EXPECT_EQ(Kiln::formatFileSize(path), "1.5 MB");
	EXPECT_EQ(Kiln::fileSize(folder.path), 0u);
}
} // namespace
