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
		{1'000, "1000 B"},
		{1'001, "1.0 kB"},
		{1'536'000, "1.5 MB"},
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
	EXPECT_GT(modified, "1700000000");
	std::ostringstream quoted;
	json::Writer::Write(json::String(path), quoted);
	std::ostringstream out;
	EXPECT_TRUE(Kiln::FileDetails(path).serialize(out));
	EXPECT_EQ(
		out.str(), "{\n\t\"path\" : " + quoted.str() +
					   ",\n\t\"extension\" : \"gz\",\n\t\"filesize_human\" : \"1.5 MB\",\n\t\"filesize\" : 1536000"
					   ",\n\t\"modtime\" : " +
					   modified + ",\n\t\"createTime\" : " + std::to_string(Kiln::fileCreationTime(path)) + "\n}");
	EXPECT_EQ(Kiln::formatFileSize(path), "1.5 MB");
	EXPECT_EQ(Kiln::fileSize(folder.path), 0u);
}
} // namespace
