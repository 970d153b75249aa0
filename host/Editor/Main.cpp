// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The headless editor: plays a story.
//   HeadlessEditor -story=<file> [-project=<folder>] [-plugins=<folder>[;<folder>...]] [-report=<folder>]
// Each session of a story runs in a process of its own, which this one starts with "-session=<number>" added.
// Exit codes: 0 played to the end, 1 a step failed or the input is bad, 3 a fatal check.
#include "StoryPlayer.h"

#include <cstdio>
#include <map>
#include <sstream>
#include <windows.h>

namespace
{
using FArguments = std::map<std::wstring, std::wstring>;

FArguments Parse(int Count, wchar_t** Arguments, const std::filesystem::path& Bin)
{
	FArguments Result{{L"-story", {}}, {L"-project", Bin / L"../session"}, {L"-plugins", Bin / L"../stage"},
		{L"-report", {}}, {L"-session", {}}};
	for (int Index = 1; Index < Count; ++Index)
	{
		const std::wstring Argument = Arguments[Index];
		const size_t Split = std::min(Argument.find(L'='), Argument.size());
		const auto Found = Result.find(Argument.substr(0, Split));
		if (Found == Result.end())
		{
			throw FStoryError(std::string("unknown argument ") + TCHAR_TO_UTF8(Argument.c_str()));
		}
		Found->second = Argument.substr(std::min(Split + 1, Argument.size()));
	}
	if (Result[L"-story"].empty())
	{
		throw FStoryError("no story given: -story=<file>");
	}
	return Result;
}

FEngineLoopOptions MakeOptions(const FArguments& Arguments)
{
	FEngineLoopOptions Options;
	Options.ProjectFolder = std::filesystem::path(Arguments.at(L"-project")).generic_wstring().c_str();
	Options.Scene = EHostScene::Stage;
	std::wistringstream Folders(Arguments.at(L"-plugins"));
	for (std::wstring Folder; std::getline(Folders, Folder, L';');)
	{
		Options.PluginFolders.Add(std::filesystem::path(Folder).generic_wstring().c_str());
	}
	return Options;
}

/** Plays one session in a child process and returns its exit code. */
int RunSession(size_t Session)
{
	std::wstring CommandLine = std::wstring(GetCommandLineW()) + L" -session=" + std::to_wstring(Session);
	STARTUPINFOW Startup{};
	Startup.cb = sizeof Startup;
	PROCESS_INFORMATION Process{};
	std::fflush(stdout);
	if (!CreateProcessW(nullptr, CommandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &Startup, &Process))
	{
		throw FStoryError("the session's process does not start");
	}
	WaitForSingleObject(Process.hProcess, INFINITE);
	DWORD Code = 0;
	GetExitCodeProcess(Process.hProcess, &Code);
	CloseHandle(Process.hThread);
	CloseHandle(Process.hProcess);
	return static_cast<int>(Code);
}
} // namespace

int wmain(int Count, wchar_t** Arguments)
{
	SetConsoleOutputCP(CP_UTF8);
	try
	{
		const std::filesystem::path Bin = std::filesystem::absolute(Arguments[0]).parent_path();
		const FArguments Given = Parse(Count, Arguments, Bin);
		const FStory Story(Given.at(L"-story"));
		CheckStory(Story);
		FReport Report(Given.at(L"-report"));
		if (const std::wstring& Session = Given.at(L"-session"); !Session.empty())
		{
			PlayStory(Story, std::stoul(Session), MakeOptions(Given), Report);
			return 0;
		}
		Report.Begin(Bin / L"report.html", Story.Title());
		for (size_t Session = 0; Session < Story.SessionCount(); ++Session)
		{
			if (const int Code = RunSession(Session))
			{
				return Code;
			}
		}
		std::printf("%s: played to the end\n", Story.Title().c_str());
		return 0;
	}
	catch (const std::runtime_error& Error)
	{
		std::fflush(stdout);
		std::fprintf(stderr, "%s\n", Error.what());
		return 1;
	}
}
