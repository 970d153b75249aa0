// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The headless editor: plays a story.
//   HeadlessEditor -story=<file> [-project=<folder>] [-plugins=<folder>[;<folder>...]] [-report=<folder>]
// Each session of a story runs in a process of its own, which this one starts with "-session=<number>" added.
// Exit codes: 0 played to the end, 1 a step failed or the input is bad, 3 a fatal check.
#include "Misc/Paths.h"
#include "StoryPlayer.h"

#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <windows.h>

namespace
{
struct FCommandLine
{
	std::string Story;
	FEngineLoopOptions Options;

	/** Where a page about the story is written; empty for none. */
	FString ReportFolder;

	/** The one session to play, or -1 for all. */
	int Session = -1;
};

TArray<FString> SplitFolders(const std::wstring& List)
{
	TArray<FString> Folders;
	for (size_t Begin = 0; Begin <= List.size();)
	{
		const size_t End = std::min(List.find(L';', Begin), List.size());
		Folders.Add(FString(List.substr(Begin, End - Begin).c_str()));
		Begin = End + 1;
	}
	return Folders;
}

FCommandLine Parse(int Count, wchar_t** Arguments)
{
	const std::filesystem::path Bin = std::filesystem::absolute(Arguments[0]).parent_path();
	FCommandLine Result;
	Result.Options.ProjectFolder = (Bin / L"../session").generic_wstring().c_str();
	Result.Options.Scene = EHostScene::Stage;
	Result.Options.PluginFolders.Add((Bin / L"../stage").generic_wstring().c_str());
	const std::map<std::wstring, std::function<void(const std::wstring&)>> Setters{
		{L"-story", [&](const std::wstring& Value) { Result.Story = TCHAR_TO_UTF8(Value.c_str()); }},
		{L"-project", [&](const std::wstring& Value) { Result.Options.ProjectFolder = Value.c_str(); }},
		{L"-plugins", [&](const std::wstring& Value) { Result.Options.PluginFolders = SplitFolders(Value); }},
		{L"-report", [&](const std::wstring& Value) { Result.ReportFolder = Value.c_str(); }},
		{L"-session", [&](const std::wstring& Value) { Result.Session = std::stoi(Value); }},
	};
	for (int Index = 1; Index < Count; ++Index)
	{
		const std::wstring Argument = Arguments[Index];
		const size_t Split = std::min(Argument.find(L'='), Argument.size());
		const auto Setter = Setters.find(Argument.substr(0, Split));
		if (Setter == Setters.end())
		{
			throw FStoryError(std::string("unknown argument ") + TCHAR_TO_UTF8(Argument.c_str()));
		}
		Setter->second(Argument.substr(std::min(Split + 1, Argument.size())));
	}
	if (Result.Story.empty())
	{
		throw FStoryError("no story given: -story=<file>");
	}
	return Result;
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
		const FCommandLine CommandLine = Parse(Count, Arguments);
		const FStory Story(CommandLine.Story);
		FStoryPlayer::Check(Story);
		const FReport Report(CommandLine.ReportFolder);
		if (CommandLine.Session >= 0)
		{
			FStoryPlayer(CommandLine.Options, Report).Play(Story, static_cast<size_t>(CommandLine.Session));
			return 0;
		}
		Report.Begin(Story.Title());
		for (size_t Session = 0; Session < Story.SessionCount(); ++Session)
		{
			if (const int Code = RunSession(Session))
			{
				return Code;
			}
		}
		std::printf("%s: played to the end\n", CommandLine.Story.c_str());
		return 0;
	}
	catch (const FStoryError& Error)
	{
		std::fflush(stdout);
		std::fprintf(stderr, "%s\n", Error.what());
		return 1;
	}
}
