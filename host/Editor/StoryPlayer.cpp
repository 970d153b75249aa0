// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "StoryPlayer.h"

#include "Host/Assets.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{
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
	static const std::vector<FVerb> All{
		{"new project", 0, &FStoryPlayer::NewProject},
		{"asset", 2, &FStoryPlayer::Asset},
		{"put file", 2, &FStoryPlayer::PutFile},
		{"start", 0, &FStoryPlayer::Start, true},
		{"layout", 1, &FStoryPlayer::Layout},
		{"open pane", 1, &FStoryPlayer::OpenPane},
		{"close pane", 1, &FStoryPlayer::ClosePane},
		{"activate pane", 1, &FStoryPlayer::ActivatePane},
		{"open menu", 1, &FStoryPlayer::OpenMenu, true},
		{"click", 1, &FStoryPlayer::Click},
		{"create asset", 2, &FStoryPlayer::CreateAsset},
		{"open assets", 1, &FStoryPlayer::OpenAssets, true},
		{"save picture", 1, &FStoryPlayer::SavePicture},
		{"play in", 1, &FStoryPlayer::PlayIn},
		{"end play", 0, &FStoryPlayer::EndPlay},
		{"quit", 0, &FStoryPlayer::Quit},
		{"expect log", 1, &FStoryPlayer::ExpectLog},
		{"expect menu", 1, &FStoryPlayer::ExpectMenu},
		{"expect file", 2, &FStoryPlayer::ExpectFile},
		{"expect picture", 2, &FStoryPlayer::ExpectPicture},
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
		OutArguments.clear();
		for (size_t Index = Count; Index < Step.Words.size(); ++Index)
		{
			OutArguments.push_back(Step.Words[Index].Text);
		}
		if (OutArguments.size() < Verb->ArgumentCount ||
			(OutArguments.size() > Verb->ArgumentCount && !Verb->bTakesMore))
		{
			throw Story.Error(Step, Step.Words[Count - 1].Column,
				"\"" + Verb->Words + "\" takes " + std::to_string(Verb->ArgumentCount) + " argument(s), not " +
					std::to_string(OutArguments.size()));
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
		if (Verb.Do == &FStoryPlayer::Start && bIsRunning)
		{
			throw Story.Error(Step, Step.Words[0].Column, "the editor is running already");
		}
		bIsRunning = Verb.Do == &FStoryPlayer::Start || (bIsRunning && Verb.Do != &FStoryPlayer::Quit);
	}
}

void FStoryPlayer::Play(const FStory& Story, size_t Session)
{
	StoryFolder = Wide(Story.Folder());
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
			Log.clear();
		}
		try
		{
			(this->*Verb.Do)(Arguments);
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
	const std::string Line = TCHAR_TO_UTF8(*(Category.ToString() + TEXT(": ") + Text));
	Log.push_back(Line);
	std::printf("    %s\n", Line.c_str());
}

void FStoryPlayer::NewProject(const FArguments&)
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

void FStoryPlayer::Asset(const FArguments& Arguments)
{
	HostAssets::Write(Options.ProjectFolder, Wide(Arguments[0]), Wide(Arguments[1]));
}

void FStoryPlayer::PutFile(const FArguments& Arguments)
{
	const std::filesystem::path Source = *FPaths::Combine(StoryFolder, Wide(Arguments[0]));
	const std::filesystem::path Target = *FPaths::Combine(Options.ProjectFolder, Wide(Arguments[1]));
	std::error_code Failure;
	std::filesystem::create_directories(Target.parent_path(), Failure);
	if (std::filesystem::is_regular_file(Target, Failure))
	{
		std::filesystem::remove(Target, Failure);
	}
	std::filesystem::copy(Source, Target, std::filesystem::copy_options::recursive, Failure);
	if (Failure)
	{
		throw FDriverError(Wide(Arguments[0]) + TEXT(" cannot be copied"));
	}
}

void FStoryPlayer::Start(const FArguments& Arguments)
{
	if (!Arguments.empty())
	{
		Options.Culture = Wide(Arguments.back());
	}
	Driver.Start(Options);
}

void FStoryPlayer::OpenPane(const FArguments& Arguments)
{
	Driver.OpenPane(Wide(Arguments[0]));
}

void FStoryPlayer::Layout(const FArguments& Arguments)
{
	Driver.SetLayout(Wide(Arguments[0]));
}

void FStoryPlayer::ClosePane(const FArguments& Arguments)
{
	Driver.ClosePane(Wide(Arguments[0]));
}

void FStoryPlayer::ActivatePane(const FArguments& Arguments)
{
	Driver.ActivatePane(Wide(Arguments[0]));
}

void FStoryPlayer::OpenMenu(const FArguments& Arguments)
{
	for (const std::string& Name : Arguments)
	{
		Name == "View" ? Driver.Menus().OpenViewMenu() : Driver.Menus().OpenSubMenu(Wide(Name));
	}
	Report.AddMenu(TCHAR_TO_UTF8(*Driver.Menus().Text()));
}

void FStoryPlayer::Click(const FArguments& Arguments)
{
	Driver.Menus().Click(Wide(Arguments[0]));
}

void FStoryPlayer::CreateAsset(const FArguments& Arguments)
{
	Driver.CreateAsset(Wide(Arguments[0]), Wide(Arguments[1]));
}

void FStoryPlayer::OpenAssets(const FArguments& Arguments)
{
	TArray<FString> Paths;
	for (const std::string& Path : Arguments)
	{
		Paths.Add(Wide(Path));
	}
	Driver.OpenAssets(Paths);
}

FString FStoryPlayer::PictureFile(const std::string& Name) const
{
	return FPaths::Combine(Options.ProjectFolder, TEXT("Saved/Pictures"), Wide(Name) + TEXT(".png"));
}

void FStoryPlayer::SavePicture(const FArguments& Arguments)
{
	if (!::SavePicture(Driver.TakePicture(), PictureFile(Arguments[0])))
	{
		throw FDriverError(PictureFile(Arguments[0]) + TEXT(" cannot be written"));
	}
	Report.AddPicture(PictureFile(Arguments[0]), Arguments[0]);
}

void FStoryPlayer::ExpectPicture(const FArguments& Arguments)
{
	if (Arguments[0] != "like" && Arguments[0] != "unlike")
	{
		throw FDriverError(TEXT("a picture is expected to be \"like\" or \"unlike\" a saved one"));
	}
	FPicture Saved;
	if (!LoadPicture(PictureFile(Arguments[1]), Saved))
	{
		throw FDriverError(PictureFile(Arguments[1]) + TEXT(" cannot be read"));
	}
	if (IsSamePicture(Driver.TakePicture(), Saved) != (Arguments[0] == "like"))
	{
		throw FDriverError(TEXT("the active pane does not show a picture ") + Wide(Arguments[0] + " " + Arguments[1]));
	}
}

void FStoryPlayer::PlayIn(const FArguments& Arguments)
{
	if (Arguments[0] != "pane" && Arguments[0] != "window")
	{
		throw FDriverError(TEXT("play is in a pane or in a window"));
	}
	Arguments[0] == "pane" ? Driver.PlayInPane() : Driver.PlayInWindow();
}

void FStoryPlayer::EndPlay(const FArguments&)
{
	Driver.EndPlay();
}

void FStoryPlayer::Quit(const FArguments&)
{
	Driver.Quit();
}

void FStoryPlayer::ExpectLog(const FArguments& Arguments)
{
	const std::string& Text = Arguments[0];
	if (std::none_of(
			Log.begin(), Log.end(), [&Text](const std::string& Line) { return Line.find(Text) != std::string::npos; }))
	{
		throw FDriverError(TEXT("the log does not hold \"") + Wide(Text) + TEXT("\""));
	}
}

void FStoryPlayer::ExpectMenu(const FArguments& Arguments)
{
	// Whole rows, whatever their depth.
	std::istringstream Menu(TCHAR_TO_UTF8(*Driver.Menus().Text()));
	std::string Others;
	for (std::string Row; std::getline(Menu, Row);)
	{
		Row.erase(0, Row.find_first_not_of(' '));
		if (Row == Arguments[0])
		{
			return;
		}
		Others += " \"" + Row + "\"";
	}
	throw FDriverError(TEXT("no row of the open menus is \"") + Wide(Arguments[0] + "\", only:" + Others));
}

void FStoryPlayer::ExpectFile(const FArguments& Arguments)
{
	const FString File = FPaths::Combine(Options.ProjectFolder, Wide(Arguments[0]));
	const std::string Actual = ReadFile(File);
	if (Actual != WithEditorLineEnds(ReadFile(FPaths::Combine(StoryFolder, Wide(Arguments[1])))))
	{
		throw FDriverError(TEXT("the file is another one:\n") + Wide(Actual));
	}
}
