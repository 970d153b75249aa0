// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Failing.h"
#include "TemporaryFolder.h"
#include <gmock/gmock.h>

namespace
{
using Names = std::vector<std::string>;
/** Expects an error that begins with the operation and ends with the system's words and the path, in UTF-8. */
void expectError(const std::string& operation, const std::string& folder)
{
	EXPECT_THAT([&] { Kiln::listFiles(folder); },
		testing::ThrowsMessage<boost::filesystem::filesystem_error>(
			testing::AllOf(testing::StartsWith(operation + ": "), testing::EndsWith(".: \"" + folder + "\""))));
}

TEST(ListFiles, SortsByLowerCaseNamesAndLeavesFoldersOut)
{
	const TemporaryFolder folder;
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
	expectError("directory_iterator::directory_iterator", folder.file("file"));
	const auto denied =
		failing("GetFileAttributesW", &GetFileAttributesW, ERROR_ACCESS_DENIED, INVALID_FILE_ATTRIBUTES);
	const auto unopened = failing("CreateFileW", &CreateFileW, ERROR_ACCESS_DENIED, INVALID_HANDLE_VALUE);
	expectError("exists", folder.path);
}

TEST(ListFiles, NamesTheStepThatFailsOnTheWay)
{
	const TemporaryFolder folder;
	folder.file("a");
	// Below the call that lists, which is looked up at run time: it gives the entries once, then access is denied.
	using Query = long(HANDLE, HANDLE, void*, void*, void*, void*, ULONG, int, BOOLEAN, void*, BOOLEAN);
	auto* const real = reinterpret_cast<Query*>(
		reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryDirectoryFile")));
	const ImportOverride denied(
		"NtQueryDirectoryFile", real,
		[real, given = false](HANDLE handle, HANDLE event, void* apc, void* context, void* status, void* buffer,
			ULONG size, int kind, BOOLEAN single, void* mask, BOOLEAN restart) mutable
		{
			const long done =
				given ? static_cast<long>(0xC0000022)
					  : real(handle, event, apc, context, status, buffer, size, kind, single, mask, restart);
			given = given || done == 0;
			return done;
		},
		GetModuleHandleW(L"kernelbase.dll"));
	expectError("directory_iterator::operator++", folder.path);
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
}
} // namespace
