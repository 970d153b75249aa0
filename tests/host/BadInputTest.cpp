// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a user sees who gives the program something broken: one line with file and place, and a non-zero exit.
#include "Program.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

namespace fs = std::filesystem;
using testing::HasSubstr;

class BadInput : public testing::Test
{
protected:
	BadInput() : Folder(fs::temp_directory_path() / (L"tonalith-bad-" + std::to_wstring(GetCurrentProcessId())))
	{
		fs::remove_all(Folder);
		fs::create_directories(Folder / L"plugins");
		Write("start.story", "start\nquit\n");
	}

	~BadInput() override
	{
		std::error_code Ignored;
		fs::remove_all(Folder, Ignored);
	}

	void Write(const char* File, const std::string& Text) const
	{
		std::ofstream(Folder / File, std::ios::binary) << Text;
	}

	FProgramResult Play(const wchar_t* Story, const std::wstring& More = {}) const
	{
		const std::wstring Root = Folder.wstring();
		return RunHeadlessEditor(L"-story=" + Root + L"/" + Story + L" -project=" + Root + L"/project -plugins=" +
								 Root + L"/plugins" + More);
	}

	/** The reason is the last line, and nothing comes after it. */
	void ExpectReason(const wchar_t* Story, const std::string& Reason) const
	{
		const FProgramResult Result = Play(Story);
		EXPECT_EQ(Result.ExitCode, 1u);
		const size_t LastLine = Result.Output.rfind('\n', Result.Output.size() - 2);
		EXPECT_THAT(Result.Output.substr(LastLine + 1), HasSubstr(Reason)) << Result.Output;
	}

	const fs::path Folder;
};

TEST_F(BadInput, StoriesNameFileLineAndColumn)
{
	const struct
	{
		const char* Text;
		const char* Reason;
	} Rows[] = {
		{"start\n  opne pane A\n", "bad.story:2:3: unknown verb \"opne\""},
		{"start\nopen pane\n", "bad.story:2:6: \"open pane\" takes 1 argument(s), not 0"},
		{"# ok\nopen pane \"A\n", "bad.story:2:11: the text has no closing quote"},
		{"open pane A\n", "bad.story:1:1: the editor is not running"},
		{"start\nstart\n", "bad.story:2:1: the editor is running already"},
		{"start\nclose pane A\n", "bad.story:2:1: no pane \"A\" is open"},
		{"start\nplay\n", "bad.story:2:1: no pane is open"},
		{"start\nlayout Round\n", "bad.story:2:1: no layout \"Round\""},
		{"start\ncreate asset Thing /Game/A\n", "bad.story:2:1: no new asset \"Thing\" is offered"},
		{"start\nopen assets /Game/A.A\n", "bad.story:2:1: no asset \"/Game/A.A\""},
		{"put file nowhere Saved/a\n", "bad.story:1:1: filesystem error: cannot copy"},
		{"start\nopen pane A\nexpect picture like a\n", "a.png cannot be read"},
		{"start\nopen pane A\nopen menu View\nclick Nothing\n", "bad.story:4:1: no entry \"Nothing\" can be clicked"},
		{"start\nexpect menu Nothing\n", "bad.story:2:1: no row of the open menus is \"Nothing\""},
		{"start\nexpect log nowhere\n", "bad.story:2:1: the log does not hold \"nowhere\""},
	};
	for (const auto& Row : Rows)
	{
		Write("bad.story", Row.Text);
		ExpectReason(L"bad.story", Row.Reason);
	}
	ExpectReason(L"missing.story", "missing.story: cannot be read");
}

TEST_F(BadInput, ThePageOfAStoryNeedsNoOtherFile)
{
	Write("page.story",
		"# A & B\nstart\nlayout TwoPanesHoriz\nopen menu View\nsave picture a\n# End\nsave picture b\nquit\n");
	fs::remove("index.html");
	Play(L"page.story");
	EXPECT_FALSE(fs::exists("index.html")) << "nobody asked for a page";
	const FProgramResult Result = Play(L"page.story", L" -report=" + (Folder / L"out").wstring());
	EXPECT_EQ(Result.ExitCode, 0u) << Result.Output;
	std::ifstream File(Folder / L"out/index.html", std::ios::binary);
	const std::string Page(std::istreambuf_iterator<char>(File), {});
	for (const char* Shown :
		{"<title>page</title>", "<p>A &amp; B </p>", "class=\"panes n2\"", "data:image/png;base64,iVBOR",
			"<li class=\"toggle on\">Realtime", "<summary>Steps</summary>", "class=\"picture p", "type=\"range\""})
	{
		EXPECT_THAT(Page, HasSubstr(Shown));
	}
	for (const char* Reference : {"http", "src=", "href=", "@import"})
	{
		EXPECT_EQ(Page.find(Reference), Page.npos) << Reference;
	}
}

TEST_F(BadInput, ArgumentsAreChecked)
{
	EXPECT_THAT(RunHeadlessEditor(L"").Output, HasSubstr("no story given: -story=<file>"));
	EXPECT_THAT(RunHeadlessEditor(L"-sotry=x").Output, HasSubstr("unknown argument -sotry=x"));
	EXPECT_EQ(RunHeadlessEditor(L"-sotry=x").ExitCode, 1u);
}
