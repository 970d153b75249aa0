// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "StoryPlayer.h"

#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace
{
constexpr const char* StartVerb = "start";
constexpr const char* QuitVerb = "quit";

FString Wide(const std::string& Text)
{
	return FString(UTF8_TO_TCHAR(Text.c_str()));
}

std::string ReadFile(const FString& Path)
{
	std::ifstream Stream(std::filesystem::path(*Path), std::ios::binary);
	if (!Stream)
	{
		throw FDriverError(FString::Printf(TEXT("%s cannot be read"), *Path));
	}
	std::ostringstream Text;
	Text << Stream.rdbuf();
	return Text.str();
}

/** The text with the line ends that the editor writes, whatever the file was checked out with. */
std::string WithEditorLineEnds(const std::string& Text)
{
	std::string Result;
	for (const char Character : Text)
	{
		Result += Character == '\r' ? "" : Character == '\n' ? "\r\n" : std::string(1, Character);
	}
	return Result;
}
} // namespace

FStoryPlayer::FStoryPlayer(const FEngineLoopOptions& InOptions, const FReport& InReport)
	: Options(InOptions), Report(InReport)
{
	GLog->AddOutputDevice(this);
}

FStoryPlayer::~FStoryPlayer()
{
	GLog->RemoveOutputDevice(this);
}

const std::vector<FStoryPlayer::FVerb>& FStoryPlayer::Verbs()
{
	using P = FStoryPlayer;
	using A = const FArguments;
	static const std::vector<FVerb> All{
		{"put file", 2, [](P& Player, A& Args) { Player.PutFile(Args[0], Args[1]); }},
		{StartVerb, 0, [](P& Player, A& Args) { Player.Start(Args); }, true},
		{"layout", 1, [](P& Player, A& Args) { Player.Driver.SetLayout(Args[0]); }},
		{"open pane", 1, [](P& Player, A& Args) { Player.OpenPane(Args[0]); }},
		{"close pane", 1, [](P& Player, A& Args) { Player.Driver.ClosePane(Args[0]); }},
		{"open menu", 1, [](P& Player, A& Args) { Player.OpenMenu(Args); }, true},
		{"click", 1, [](P& Player, A& Args) { Player.Driver.Menus().Click(Args[0]); }},
		{"create asset", 2, [](P& Player, A& Args) { Player.Driver.CreateAsset(Args[0], Args[1]); }},
		{"open assets", 1, [](P& Player, A& Args) { Player.Driver.OpenAssets(Args); }, true},
		{"edit", 3, [](P& Player, A& Args) { Player.Driver.Windows().EditProperty(Args[0], Args[1], Args[2]); }},
		{"slide", 2,
			[](P& Player, A& Args) { Player.Driver.Windows().MoveSlider(Args[0], std::wcstof(*Args[1], nullptr)); }},
		{"save picture", 1,
			[](P& Player, A& Args) { Player.SavePicture(Args[0], Args.Num() > 1 ? Args[1] : FString()); }, true},
		{"play", 1, [](P& Player, A& Args) { Player.Play(Args[0]); }},
		{QuitVerb, 0, [](P& Player, A&) { Player.Driver.Quit(); }},
		{"expect log", 1, [](P& Player, A& Args) { Player.ExpectLog(Args[0]); }},
		{"expect menu", 1, [](P& Player, A& Args) { Player.ExpectMenu(Args[0]); }},
		{"expect file", 2, [](P& Player, A& Args) { Player.ExpectFile(Args[0], Args[1]); }},
		{"expect picture", 2, [](P& Player, A& Args) { Player.ExpectPicture(Args[0], Args[1]); }},
	};
	return All;
}

const FStoryPlayer::FVerb& FStoryPlayer::FindVerb(const FStory& Story, const FStoryStep& Step, FArguments& OutArguments)
{
	std::string Front;
	for (size_t Count = 1; Count <= Step.Words.size(); ++Count)
	{
		Front += (Front.empty() ? "" : " ") + Step.Words[Count - 1].Text;
		const auto Verb = std::find_if(
			Verbs().begin(), Verbs().end(), [&Front](const FVerb& Candidate) { return Candidate.Words == Front; });
		if (Verb == Verbs().end())
		{
			continue;
		}
		OutArguments.Empty();
		for (size_t Index = Count; Index < Step.Words.size(); ++Index)
		{
			OutArguments.Add(Wide(Step.Words[Index].Text));
		}
		const int32 Given = OutArguments.Num();
		if (Given < Verb->ArgumentCount || (Given > Verb->ArgumentCount && !Verb->bTakesMore))
		{
			throw Story.Error(Step, Step.Words[Count - 1].Column,
				"\"" + Verb->Words + "\" takes " + std::to_string(Verb->ArgumentCount) + " argument(s), not " +
					std::to_string(Given));
		}
		return *Verb;
	}
	throw Story.Error(Step, Step.Words[0].Column, "unknown verb \"" + Step.Words[0].Text + "\"");
}

void FStoryPlayer::Check(const FStory& Story)
{
	FArguments Ignored;
	bool bIsRunning = false;
	for (const FStoryStep& Step : Story.Steps())
	{
		const FVerb& Verb = FindVerb(Story, Step, Ignored);
		const bool bStarts = Verb.Words == StartVerb;
		if (bStarts && bIsRunning)
		{
			throw Story.Error(Step, Step.Words[0].Column, "the editor is running already");
		}
		bIsRunning = bStarts || (bIsRunning && Verb.Words != QuitVerb);
	}
}

void FStoryPlayer::Play(const FStory& Story, size_t Session)
{
	StoryFolder = Wide(Story.Folder());
	if (Session == 0)
	{
		ForgetProject();
	}
	FArguments Arguments;
	for (const FStoryStep& Step : Story.Steps())
	{
		const FVerb& Verb = FindVerb(Story, Step, Arguments);
		if (Step.Session != Session)
		{
			continue;
		}
		Show(Step);
		if (!Verb.Words.starts_with("expect"))
		{
			Log.Empty();
		}
		try
		{
			Verb.Do(*this, Arguments);
		}
		catch (const FDriverError& Failure)
		{
			throw Story.Error(Step, Step.Words[0].Column, Failure.what());
		}
	}
}

void FStoryPlayer::Show(const FStoryStep& Step) const
{
	std::printf("%s\n", Step.Source.c_str());
	std::fflush(stdout);
	if (!Step.Narration.empty())
	{
		Report.AddNarration(Step.Narration);
	}
	Report.AddStep(Step.Source);
}

void FStoryPlayer::Serialize(const TCHAR* Text, ELogVerbosity::Type, const FName& Category)
{
	Log.Add(Category.ToString() + TEXT(": ") + Text);
	std::printf("    %s\n", TCHAR_TO_UTF8(*Log.Last()));
}

void FStoryPlayer::ForgetProject()
{
	for (const char* Folder : {"Content", "ProgramData", "Saved"})
	{
		std::error_code Failure;
		std::filesystem::remove_all(std::filesystem::path(*Options.ProjectFolder) / Folder, Failure);
		if (Failure)
		{
			throw FDriverError(TEXT("the project's files cannot be removed"));
		}
	}
}

void FStoryPlayer::PutFile(const FString& From, const FString& To)
{
	const std::filesystem::path Source = *FPaths::Combine(StoryFolder, From);
	const std::filesystem::path Target = *FPaths::Combine(Options.ProjectFolder, To);
	std::error_code Failure;
	std::filesystem::create_directories(Target.parent_path(), Failure);
	if (std::filesystem::is_regular_file(Target, Failure))
	{
		std::filesystem::remove(Target, Failure);
	}
	std::filesystem::copy(Source, Target, std::filesystem::copy_options::recursive, Failure);
	if (Failure)
	{
		throw FDriverError(From + TEXT(" cannot be copied"));
	}
}

void FStoryPlayer::Start(const FArguments& Arguments)
{
	if (!Arguments.IsEmpty())
	{
		Options.Culture = Arguments.Last();
	}
	Driver.Start(Options);
}

void FStoryPlayer::OpenPane(const FString& Key)
{
	Driver.HasPane(Key) ? Driver.ActivatePane(Key) : Driver.OpenPane(Key);
}

void FStoryPlayer::OpenMenu(const FArguments& Arguments)
{
	for (const FString& Name : Arguments)
	{
		Name.Equals(TEXT("View")) ? Driver.Menus().OpenViewMenu() : Driver.Menus().OpenSubMenu(Name);
	}
	Report.AddMenu(TCHAR_TO_UTF8(*Driver.Menus().Text()));
}

FString FStoryPlayer::PictureFile(const FString& Name) const
{
	return FPaths::Combine(Options.ProjectFolder, TEXT("Saved/Pictures"), Name + TEXT(".png"));
}

void FStoryPlayer::SavePicture(const FString& Name, const FString& Window)
{
	const FPicture Picture = Window.IsEmpty() ? Driver.TakePicture() : Driver.Windows().Picture(Window);
	if (!::SavePicture(Picture, PictureFile(Name)))
	{
		throw FDriverError(PictureFile(Name) + TEXT(" cannot be written"));
	}
	Report.AddPicture(PictureFile(Name), TCHAR_TO_UTF8(*Name));
}

void FStoryPlayer::ExpectPicture(const FString& Likeness, const FString& Name)
{
	const bool bLike = Likeness.Equals(TEXT("like"));
	if (!bLike && !Likeness.Equals(TEXT("unlike")))
	{
		throw FDriverError(TEXT("a picture is expected to be \"like\" or \"unlike\" a saved one"));
	}
	FPicture Saved;
	if (!LoadPicture(PictureFile(Name), Saved))
	{
		throw FDriverError(PictureFile(Name) + TEXT(" cannot be read"));
	}
	if (IsSamePicture(Driver.TakePicture(), Saved) != bLike)
	{
		throw FDriverError(TEXT("the active pane does not show a picture ") + Likeness + TEXT(" ") + Name);
	}
}

void FStoryPlayer::Play(const FString& Where)
{
	const std::map<FString, void (FEditorDriver::*)()> Actions{{TEXT("pane"), &FEditorDriver::PlayInPane},
		{TEXT("window"), &FEditorDriver::PlayInWindow}, {TEXT("stop"), &FEditorDriver::EndPlay}};
	const auto Action = Actions.find(Where);
	if (Action == Actions.end())
	{
		throw FDriverError(TEXT("play is in a pane or a window, or stops"));
	}
	(Driver.*Action->second)();
}

void FStoryPlayer::ExpectLog(const FString& Text)
{
	if (!Log.ContainsByPredicate(
			[&Text](const FString& Line) { return std::wstring_view(*Line).find(*Text) != std::wstring_view::npos; }))
	{
		throw FDriverError(TEXT("the log does not hold \"") + Text + TEXT("\""));
	}
}

void FStoryPlayer::ExpectMenu(const FString& Expected)
{
	// Whole rows, whatever their depth.
	const std::string Wanted = TCHAR_TO_UTF8(*Expected);
	std::istringstream Menu(TCHAR_TO_UTF8(*Driver.Menus().Text()));
	std::string Others;
	for (std::string Row; std::getline(Menu, Row);)
	{
		Row.erase(0, Row.find_first_not_of(' '));
		if (Row == Wanted)
		{
			return;
		}
		Others += " \"" + Row + "\"";
	}
	throw FDriverError(TEXT("no row of the open menus is \"") + Wide(Wanted + "\", only:" + Others));
}

void FStoryPlayer::ExpectFile(const FString& File, const FString& Expected)
{
	const std::string Actual = ReadFile(FPaths::Combine(Options.ProjectFolder, File));
	if (Actual != WithEditorLineEnds(ReadFile(FPaths::Combine(StoryFolder, Expected))))
	{
		throw FDriverError(TEXT("the file is another one:\n") + Wide(Actual));
	}
}
