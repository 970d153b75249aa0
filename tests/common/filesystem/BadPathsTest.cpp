// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// No path makes any function throw or end the process, and none that names no file succeeds.
#include "TemporaryFolder.h"
#include <kiln/Access.h>
#include <kiln/Drives.h>
#include <kiln/FileActionHelper.h>
#include <kiln/FileDetails.h>
#include <kiln/FileInformation.h>
#include <windows.h>

namespace
{
TEST(BadPaths, GiveTheDocumentedResults)
{
	std::string folders = "C:\\";
	std::string letters;
	for (int count = 0; count < 16'000; ++count)
	{
		folders += "a\\";
		letters += "\xC3\xBC-1";
	}
	const std::string paths[] = {
		"",
		"missing\xE2\x82\xAC\xF0\x9F\x8E\xA8",
		std::string("C:\\windows\0", 11),
		std::string("\0", 1),
		"\xFF\xFE\x80",
		"a<b>|c:\"?*",
		"\\\\?\\",
		"C:\\" + std::string(300, 'a'),
		folders + "b",
		letters + ".x",
	};
	for (const std::string& path : paths)
	{
		SCOPED_TRACE(path.substr(0, 20) + " " + std::to_string(path.size()));
		EXPECT_EQ(Kiln::fileSize(path), 0u);
		EXPECT_EQ(Kiln::formatFileSize(path), "0 B");
		EXPECT_EQ(Kiln::fileModificationTime(path), 0);
		EXPECT_EQ(Kiln::fileCreationTime(path), 0);
		EXPECT_FALSE(Kiln::hasAccess(path, GENERIC_READ));
		EXPECT_FALSE(Kiln::setFileAttributesLong(path, FILE_ATTRIBUTE_NORMAL));
		EXPECT_FALSE(Kiln::openInput(path));
		EXPECT_FALSE(Kiln::FileActionHelper::moveToRecycleBin(path));
		EXPECT_FALSE(Kiln::FileActionHelper::revealInFolder(path));
		EXPECT_EQ(Kiln::FileDetails(path).Size(), 6u);
		EXPECT_EQ(Kiln::parentOf(path) + Kiln::stemOf(path) + Kiln::extensionOf(path) == "", path.empty());
		Kiln::pathKey(path);
		Kiln::driveNumber(path);
		std::string out;
		Kiln::numberedName(path, out, 1, 1, true);
		EXPECT_EQ(Kiln::retinaVariantName(path, out), !path.empty());
	}
}
} // namespace
