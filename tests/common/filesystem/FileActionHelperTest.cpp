// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Failing.h"
#include "TemporaryFolder.h"
#include <cstdlib>
#include <kiln/FileActionHelper.h>
#include <kiln/Unicode.h>
#include <shellapi.h>
#include <shlobj.h>

namespace
{
using Kiln::FileActionHelper;

// Quotes, blanks, variables and switches, which the shell must get as they are.
const std::string odd = "C:\\a b\\\"\xC3\xBC\" %TEMP% & -x /y.txt";
const std::string nul("C:\\a\0b", 6);

/** What the shell is given, behind a bar. */
std::string text(const wchar_t* given)
{
	return given ? "|" + Kiln::toUtf8(given) : "|none";
}

/** Whether COM is there on this thread. */
std::string com()
{
	APTTYPE type{};
	APTTYPEQUALIFIER qualifier{};
	return SUCCEEDED(CoGetApartmentType(&type, &qualifier)) ? " COM" : "";
}

TEST(OpenDocument, GivesTheTextsAsTheyAre)
{
	std::string seen;
	INT_PTR code = 33;
	const ImportOverride shell("ShellExecuteW", &ShellExecuteW,
		[&](HWND, const wchar_t* verb, const wchar_t* file, const wchar_t* parameters, const wchar_t* directory,
			INT show)
		{
			seen = text(verb) + text(file) + text(parameters) + text(directory) + std::to_string(show) + com();
			return reinterpret_cast<HINSTANCE>(code);
		});
	EXPECT_TRUE(FileActionHelper::openDocument(odd));
	EXPECT_EQ(seen + com(), "|open|" + odd + "|none|none1 COM");
	code = 32;
	EXPECT_FALSE(FileActionHelper::openDocument(odd, odd));
	EXPECT_EQ(seen, "|open|" + odd + "|" + odd + "|none1 COM");
	EXPECT_FALSE(FileActionHelper::openDocument(""));
	EXPECT_FALSE(FileActionHelper::openDocument(nul));
	EXPECT_FALSE(FileActionHelper::openDocument(odd, nul));
	EXPECT_EQ(shell.calls(), 2);
}

TEST(RevealInFolder, SelectsTheFile)
{
	const TemporaryFolder folder;
	const std::string path = folder.file("\xC3\xBC, b.txt");
	HRESULT result = S_OK;
	const ImportOverride shell("SHOpenFolderAndSelectItems", &SHOpenFolderAndSelectItems,
		[&](PCIDLIST_ABSOLUTE item, UINT count, PCUITEMID_CHILD_ARRAY, DWORD flags)
		{
			wchar_t seen[MAX_PATH];
			EXPECT_TRUE(SHGetPathFromIDListW(item, seen));
			EXPECT_EQ(text(seen) + com(), "|" + Kiln::absolutePath(path) + " COM");
			EXPECT_EQ(count + flags, 0u);
			return result;
		});
	const ImportOverride freed("ILFree", &ILFree, [real = &ILFree](LPITEMIDLIST item) { real(item); });
	EXPECT_TRUE(FileActionHelper::revealInFolder(folder.path + "/./\xC3\xBC, b.txt"));
	result = E_FAIL;
	EXPECT_FALSE(FileActionHelper::revealInFolder(path));
	EXPECT_EQ(freed.calls(), 2);
	for (const std::string& none : {folder / "missing", std::string(), nul})
	{
		EXPECT_FALSE(FileActionHelper::revealInFolder(none));
	}
	EXPECT_EQ(shell.calls(), 2);
}

TEST(RunProgram, FillsTheRequestByItsFlags)
{
	struct Row
	{
		std::uint32_t flags;
		std::string parameters, directory, request;
	};
	const Row rows[] = {
		{FileActionHelper::Elevated, odd, "", "|runas|" + odd + "|" + odd + "|none 0 5 COM"},
		{FileActionHelper::WaitForEnd, "", "C:\\\xC3\xBC b", "|none|" + odd + "|none|C:\\\xC3\xBC b 64 5 COM"},
	};
	for (const Row& row : rows)
	{
		for (const BOOL started : {TRUE, FALSE})
		{
			const HANDLE process = started && row.flags >= 2 ? CreateEventW(nullptr, TRUE, TRUE, nullptr) : nullptr;
			const ImportOverride shell("ShellExecuteExW", &ShellExecuteExW,
				[&](SHELLEXECUTEINFOW* launch)
				{
					EXPECT_EQ(launch->cbSize, 112u);
					EXPECT_EQ(text(launch->lpVerb) + text(launch->lpFile) + text(launch->lpParameters) +
								  text(launch->lpDirectory) + " " + std::to_string(launch->fMask) + " " +
								  std::to_string(launch->nShow) + com(),
						row.request);
					launch->hProcess = process;
					return started;
				});
			EXPECT_EQ(FileActionHelper::runProgram(odd, row.parameters, row.directory, row.flags), started == TRUE);
			EXPECT_TRUE(!process || isClosed(process));
		}
	}
	EXPECT_FALSE(FileActionHelper::runProgram("", "", "", 0));
	EXPECT_FALSE(FileActionHelper::runProgram("x", nul, "", 0));
	EXPECT_FALSE(FileActionHelper::runProgram("x", "", nul, 0));
}

TEST(RecycleBin, TakesFilesAndFolders)
{
	ASSERT_TRUE(std::getenv("XDG_DATA_HOME"));
	// The bin of the build machine's user.
	const std::string bin = std::string("Z:") + std::getenv("XDG_DATA_HOME") + "/Trash";
	ASSERT_TRUE(Kiln::createFolders(bin));
	const TemporaryFolder folder;
	const std::string name = Kiln::stemOf(Kiln::uniqueTemporaryPath()) + " \xE2\x82\xAC";
	const std::string file = folder.file(name + ".txt", 3);
	Kiln::createFolders(folder / (name + "/inner"));
	EXPECT_TRUE(FileActionHelper::moveToRecycleBin(folder.path + "/./" + name + ".txt"));
	EXPECT_TRUE(FileActionHelper::moveToRecycleBin(folder / (name + "/")));
	EXPECT_FALSE(boost::filesystem::exists(Kiln::widePath(file)));
	EXPECT_FALSE(boost::filesystem::exists(Kiln::widePath(folder / name)));
	EXPECT_TRUE(boost::filesystem::exists(Kiln::widePath(bin + "/files/" + name + ".txt")));
	EXPECT_TRUE(boost::filesystem::exists(Kiln::widePath(bin + "/files/" + name + "/inner")));
	EXPECT_FALSE(FileActionHelper::moveToRecycleBin(file));
}

TEST(RecycleBin, IsAskedForOnePathSilently)
{
	int result = 0;
	const ImportOverride shell("SHFileOperationW", &SHFileOperationW,
		[&](SHFILEOPSTRUCTW* operation)
		{
			const std::wstring path = L"C:\\a b\\\u00FC.txt";
			EXPECT_EQ(std::wstring(operation->pFrom, path.size() + 2), path + std::wstring(2, L'\0'));
			EXPECT_EQ(std::tuple(operation->pTo, operation->wFunc, operation->fFlags), std::tuple(nullptr, 3u, 0x1654));
			return result;
		});
	EXPECT_TRUE(FileActionHelper::moveToRecycleBin("C:/a b/\xC3\xBC.txt"));
	result = 2;
	EXPECT_FALSE(FileActionHelper::moveToRecycleBin("C:\\a b\\\xC3\xBC.txt"));
	const std::string refused[] = {"", " ", ".", "...", "C:\\a\\ ", "C:/a/. ./", "/", std::string(32'000, '/'), "C:\\",
		"C:/..", "C:", "c:.", "C: ..", "C:a/..", "\\\\server\\share", "C:\\*", "C:\\a?", "\\\\?\\C:\\a",
		"C:\\" + std::string(300, 'a'), nul};
	for (const std::string& path : refused)
	{
		EXPECT_FALSE(FileActionHelper::moveToRecycleBin(path)) << path;
	}
	EXPECT_EQ(shell.calls(), 2);
}
} // namespace
