// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "CodeOverride.h"
#include "Failing.h"
#include "TemporaryFolder.h"

namespace
{
using Names = std::vector<std::string>;
using Failure = std::pair<std::string, int>;

/** The operation and the system's error of a listing that fails. */
Failure listingError(const std::string& folder)
{
	try
	{
		Kiln::listFiles(folder);
	}
	catch (const boost::filesystem::filesystem_error& error)
	{
		EXPECT_EQ(error.path1().native(), Kiln::widePath(folder));
		const std::string text = error.what();
		EXPECT_TRUE(text.ends_with(".: \"" + folder + "\""))
			<< text << " has the path in UTF-8 behind the system's words";
		return {text.substr(0, text.find(": ")), error.code().value()};
	}
	return {"no error", 0};
}

TEST(ListFiles, SortsByLowerCaseNamesAndLeavesFoldersOut)
{
	const TemporaryFolder folder;
	EXPECT_EQ(Kiln::listFiles(folder.path), Names());
	for (const char* name : {"b", "B2", "a_x", "A-x", "\xC3\xBC", "Z", "_", "\xC3\x84.json", "a"})
	{
		folder.file(name);
	}
	Kiln::createFolders(folder / "folder.json");
	const Names sorted{"_", "a", "A-x", "a_x", "b", "B2", "Z", "\xC3\x84.json", "\xC3\xBC"};
	EXPECT_EQ(Kiln::listFiles(folder.path), sorted);
	EXPECT_EQ(Kiln::listFiles(folder.path + "/"), sorted);
	for (const std::string& missing : {folder / "missing/deeper", std::string(), std::string("C:\\\0", 4)})
	{
		EXPECT_EQ(Kiln::listFiles(missing), std::nullopt);
	}
}

TEST(ListFiles, NamesTheStepThatFails)
{
	const TemporaryFolder folder;
	EXPECT_EQ(listingError(folder.file("file")).first, "directory_iterator::directory_iterator");
	{
		const auto denied =
			failing("GetFileAttributesW", &GetFileAttributesW, ERROR_ACCESS_DENIED, INVALID_FILE_ATTRIBUTES);
		const auto unopened = failing("CreateFileW", &CreateFileW, ERROR_ACCESS_DENIED, INVALID_HANDLE_VALUE);
		EXPECT_EQ(listingError(folder.path), Failure("exists", ERROR_ACCESS_DENIED));
	}
	const ImportOverride denied("CreateFileW", &CreateFileW,
		[real = &CreateFileW](const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
			DWORD creation, DWORD flags, HANDLE pattern)
		{
			if (access & FILE_LIST_DIRECTORY)
			{
				SetLastError(ERROR_ACCESS_DENIED);
				return INVALID_HANDLE_VALUE;
			}
			return real(name, access, share, security, creation, flags, pattern);
		});
	EXPECT_EQ(listingError(folder.path), Failure("directory_iterator::directory_iterator", ERROR_ACCESS_DENIED));
}

using Listing = CodeOverride<BOOL, HANDLE, FILE_INFO_BY_HANDLE_CLASS, void*, DWORD>;
Listing* listing = nullptr;

/** Gives the entries of a folder once; the next time access is denied. */
BOOL listOnce(HANDLE folder, FILE_INFO_BY_HANDLE_CLASS kind, void* buffer, DWORD size)
{
	static bool given = false;
	const bool isListing = kind == FileIdBothDirectoryInfo || kind == FileIdBothDirectoryRestartInfo ||
						   kind == FileFullDirectoryInfo || kind == FileFullDirectoryRestartInfo;
	if (isListing && given)
	{
		SetLastError(ERROR_ACCESS_DENIED);
		return FALSE;
	}
	const BOOL done = listing->real(folder, kind, buffer, size);
	given = given || (isListing && done);
	return done;
}

TEST(ListFiles, NamesTheStepThatFailsOnTheWay)
{
	const TemporaryFolder folder;
	folder.file("a");
	Listing denied(L"kernelbase.dll", "GetFileInformationByHandleEx", &listOnce);
	listing = &denied;
	EXPECT_EQ(listingError(folder.path), Failure("directory_iterator::operator++", ERROR_ACCESS_DENIED));
}

TEST(CreateFolders, WithAllAboveThem)
{
	const TemporaryFolder folder;
	EXPECT_TRUE(Kiln::createFolders(folder / "a/\xE2\x82\xAC/c/"));
	EXPECT_TRUE(Kiln::createFolders(folder / "a/\xE2\x82\xAC/c"));
	EXPECT_TRUE(boost::filesystem::is_directory(Kiln::widePath(folder / "a\\\xE2\x82\xAC\\c")));
	folder.file("file");
	EXPECT_FALSE(Kiln::createFolders(folder / "file"));
	EXPECT_FALSE(Kiln::createFolders(folder / "file/a"));
	EXPECT_FALSE(Kiln::createFolders(folder / "a<b"));
}
} // namespace
