// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Failing.h"
#include "TemporaryFolder.h"
#include <cstdlib>
#include <kiln/FileActionHelper.h>
#include <kiln/Unicode.h>
#include <optional>
#include <shellapi.h>
#include <shlobj.h>

namespace
{
using Kiln::FileActionHelper;

// Quotes, blanks, variables and switches, which the shell must get as they are.
const std::string odd = "C:\\a b\\\"\xC3\xBC\" %TEMP% & -x /y.txt";
const std::wstring wideOdd = L"C:\\a b\\\"\u00FC\" %TEMP% & -x /y.txt";
const std::string nul("C:\\a\0b", 6);

/** Whether COM is there on this thread. */
bool hasCom()
{
	APTTYPE type{};
	APTTYPEQUALIFIER qualifier{};
	return SUCCEEDED(CoGetApartmentType(&type, &qualifier));
}

bool isText(const wchar_t* given, const std::optional<std::wstring>& expected)
{
	return given ? expected == given : !expected;
}

TEST(OpenDocument, GivesTheTextsAsTheyAre)
{
	std::optional<std::wstring> parameters;
	INT_PTR code = 33;
	const ImportOverride shell("ShellExecuteW", &ShellExecuteW,
		[&](HWND window, const wchar_t* verb, const wchar_t* file, const wchar_t* given, const wchar_t* directory,
			INT show)
		{
			EXPECT_EQ(window, nullptr);
			EXPECT_STREQ(verb, L"open");
			EXPECT_EQ(file, wideOdd);
			EXPECT_TRUE(isText(given, parameters));
			EXPECT_EQ(directory, nullptr);
			EXPECT_EQ(show, SW_SHOWNORMAL);
			EXPECT_TRUE(hasCom());
			return reinterpret_cast<HINSTANCE>(code);
		});
	EXPECT_TRUE(FileActionHelper::openDocument(odd));
	code = 32;
	EXPECT_FALSE(FileActionHelper::openDocument(odd, ""));
	code = SE_ERR_NOASSOC;
	parameters = L"\"a b\" \u20AC %PATH%";
	EXPECT_FALSE(FileActionHelper::openDocument(odd, "\"a b\" \xE2\x82\xAC %PATH%"));
	EXPECT_FALSE(hasCom());
	EXPECT_FALSE(FileActionHelper::openDocument(""));
	EXPECT_FALSE(FileActionHelper::openDocument(nul));
	EXPECT_FALSE(FileActionHelper::openDocument(odd, nul));
	EXPECT_EQ(shell.calls(), 3);
}

TEST(RevealInFolder, SelectsTheFile)
{
	const TemporaryFolder folder;
	const std::string path = folder.file("\xC3\xBC, b.txt");
	HRESULT result = S_OK;
	const ImportOverride shell("SHOpenFolderAndSelectItems", &SHOpenFolderAndSelectItems,
		[&](PCIDLIST_ABSOLUTE item, UINT count, PCUITEMID_CHILD_ARRAY children, DWORD flags)
		{
			wchar_t seen[MAX_PATH];
			EXPECT_TRUE(SHGetPathFromIDListW(item, seen));
			EXPECT_EQ(Kiln::wideAbsolutePath(path), seen);
			EXPECT_EQ(count, 0u);
			EXPECT_EQ(children, nullptr);
			EXPECT_EQ(flags, 0u);
			EXPECT_TRUE(hasCom());
			return result;
		});
	const ImportOverride freed("ILFree", &ILFree, [real = &ILFree](LPITEMIDLIST item) { real(item); });
	EXPECT_TRUE(FileActionHelper::revealInFolder(path));
	EXPECT_TRUE(FileActionHelper::revealInFolder(folder.path + "/./\xC3\xBC, b.txt"));
	result = E_FAIL;
	EXPECT_FALSE(FileActionHelper::revealInFolder(path));
	EXPECT_EQ(freed.calls(), 3);
	for (const std::string& none : {folder / "missing", std::string(), nul})
	{
		EXPECT_FALSE(FileActionHelper::revealInFolder(none));
	}
	EXPECT_EQ(shell.calls(), 3);
}

TEST(RunProgram, FillsTheRequestByItsFlags)
{
	struct Row
	{
		std::uint32_t flags;
		std::string parameters, directory;
		std::optional<std::wstring> verb, wideParameters, wideDirectory;
		ULONG mask;
	};
	const Row rows[] = {
		{0, "", "", {}, {}, {}, 0},
		{FileActionHelper::Elevated, "\"a b\" c", "", L"runas", L"\"a b\" c", {}, 0},
		{FileActionHelper::WaitForEnd, "", "C:\\\xC3\xBC b", {}, {}, L"C:\\\u00FC b", 0x40},
		{3, "-x", "D:\\", L"runas", L"-x", L"D:\\", 0x40},
	};
	for (const Row& row : rows)
	{
		for (const BOOL started : {TRUE, FALSE})
		{
			const HANDLE process = started && row.mask ? CreateEventW(nullptr, TRUE, TRUE, nullptr) : nullptr;
			const ImportOverride shell("ShellExecuteExW", &ShellExecuteExW,
				[&](SHELLEXECUTEINFOW* launch)
				{
					EXPECT_EQ(launch->cbSize, 112u);
					EXPECT_EQ(launch->fMask, row.mask);
					EXPECT_TRUE(isText(launch->lpVerb, row.verb));
					EXPECT_EQ(launch->lpFile, wideOdd);
					EXPECT_TRUE(isText(launch->lpParameters, row.wideParameters));
					EXPECT_TRUE(isText(launch->lpDirectory, row.wideDirectory));
					EXPECT_EQ(launch->nShow, 5);
					EXPECT_TRUE(hasCom());
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

TEST(RunProgram, ForReal)
{
	const TemporaryFolder folder;
	wchar_t program[MAX_PATH];
	GetModuleFileNameW(nullptr, program, MAX_PATH);
	const std::string parameters = "--gtest_filter=None.* \"--gtest_output=json:" + folder.path + "\\out file.json\"";
	EXPECT_TRUE(FileActionHelper::runProgram(Kiln::toUtf8(program), parameters, "", FileActionHelper::WaitForEnd));
	EXPECT_EQ(Kiln::listFiles(folder.path), std::vector<std::string>{"out file.json"});
}

/** Files that the recycle bin of the build machine's user holds. */
std::size_t recycled(const std::string& name)
{
	const std::string bin = std::string("Z:") + std::getenv("XDG_DATA_HOME") + "/Trash/files/" + name;
	return boost::filesystem::exists(Kiln::widePath(bin));
}

TEST(RecycleBin, TakesFilesAndFolders)
{
	ASSERT_TRUE(std::getenv("XDG_DATA_HOME"));
	ASSERT_TRUE(Kiln::createFolders(std::string("Z:") + std::getenv("XDG_DATA_HOME") + "/Trash"));
	const TemporaryFolder folder;
	const std::string name = Kiln::stemOf(Kiln::uniqueTemporaryPath()) + " \xE2\x82\xAC";
	const std::string file = folder.file(name + ".txt", 3);
	Kiln::createFolders(folder / (name + "/inner"));
	EXPECT_TRUE(FileActionHelper::moveToRecycleBin(folder.path + "/./" + name + ".txt"));
	EXPECT_TRUE(FileActionHelper::moveToRecycleBin(folder / (name + "/")));
	EXPECT_FALSE(boost::filesystem::exists(Kiln::widePath(file)));
	EXPECT_FALSE(boost::filesystem::exists(Kiln::widePath(folder / name)));
	EXPECT_TRUE(recycled(name + ".txt"));
	EXPECT_TRUE(recycled(name + "/inner"));
	EXPECT_FALSE(FileActionHelper::moveToRecycleBin(file));
}

TEST(RecycleBin, IsAskedForOnePathSilently)
{
	int result = 0;
	const ImportOverride shell("SHFileOperationW", &SHFileOperationW,
		[&](SHFILEOPSTRUCTW* operation)
		{
			const std::wstring path = L"C:\\a b\\\u00FC.txt";
			EXPECT_EQ(operation->pFrom, path);
			EXPECT_EQ(operation->pFrom[path.size() + 1], L'\0');
			EXPECT_EQ(operation->pTo, nullptr);
			EXPECT_EQ(operation->wFunc, 3u);
			EXPECT_EQ(operation->fFlags, 0x1654);
			return result;
		});
	EXPECT_TRUE(FileActionHelper::moveToRecycleBin("C:/a b/\xC3\xBC.txt"));
	result = 2;
	EXPECT_FALSE(FileActionHelper::moveToRecycleBin("C:\\a b\\\xC3\xBC.txt"));
	const std::string refused[] = {"", " ", ".", "...", "C:\\a\\ ", "C:/a/. ./", "/", "\\/\\", std::string(32'000, '/'),
		"C:\\", "C:/..", "C:", "c:.", "C: ..", "C:a/..", "\\\\server\\share", "C:\\*", "C:\\a?", "\\\\?\\C:\\a",
		"C:\\" + std::string(300, 'a'), nul};
	for (const std::string& path : refused)
	{
		EXPECT_FALSE(FileActionHelper::moveToRecycleBin(path)) << path;
	}
	EXPECT_EQ(shell.calls(), 2);
}
} // namespace
