// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "StoryPlayer.h"

#include "Misc/Paths.h"

#include <cstdio>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{
namespace fs = std::filesystem;

using FArguments = TArray<FString>;

constexpr const char* StartVerb = "start";
constexpr const char* QuitVerb = "quit";

std::string ReadFile(const fs::path& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	FDriverError::Unless(Stream.is_open(), TEXT("%s cannot be read"), Path.generic_wstring().c_str());
	return std::string(std::istreambuf_iterator<char>(Stream), {});
}

class FStoryPlayer : private FOutputDevice
{
public:
	FStoryPlayer(const FStory& InStory, const FEngineLoopOptions& InOptions, FReport& InReport)
		: Story(InStory), Options(InOptions), Report(InReport)
	{
		GLog->AddOutputDevice(this);
	}

	~FStoryPlayer() override { GLog->RemoveOutputDevice(this); }

	void Play(size_t Session);

	/** What earlier stories left in the project. */
	void ForgetProject() const
	{
		for (const char* Folder : {"Content", "ProgramData", "Saved"})
		{
			fs::remove_all(InProject(Folder));
		}
	}

	void PutFile(const FString& From, const FString& To) const
	{
		const fs::path Target = InProject(*To);
		fs::create_directories(Target.parent_path());
		fs::remove_all(Target);
		fs::copy(Story.Folder() / *From, Target, fs::copy_options::recursive);
	}

	void Start(const FArguments& Arguments)
	{
		Options.Culture = Arguments.IsEmpty() ? Options.Culture : Arguments.Last();
		Driver.Start(Options);
	}

	void OpenPane(const FString& Key) { Driver.HasPane(Key) ? Driver.ActivatePane(Key) : Driver.OpenPane(Key); }

	void OpenMenu(const FArguments& Arguments)
	{
		for (const FString& Name : Arguments)
		{
			Name.Equals(TEXT("View")) ? Driver.Menus().OpenViewMenu() : Driver.Menus().OpenSubMenu(Name);
		}
		ShowWindow();
	}

	/** Of the active pane, unless a window is named. */
	void SavePicture(const FArguments& Arguments)
	{
		const bool bIsPane = Arguments.Num() < 2;
		const FPicture Picture = bIsPane ? Driver.TakePicture() : Driver.Windows().Picture(Arguments[1]);
		const bool bIsSaved = ::SavePicture(Picture, PictureFile(Arguments[0]).generic_wstring().c_str());
		FDriverError::Unless(bIsSaved, TEXT("%s cannot be written"), *Arguments[0]);
		bIsPane ? Report.AddPicture(Picture, TCHAR_TO_UTF8(*Arguments[0])) : ShowWindow();
	}

	void ExpectPicture(bool bLike, const FString& Name)
	{
		const bool bIsLike = ReadFile(PictureFile(Name)) == EncodePicture(Driver.TakePicture());
		FDriverError::Unless(bIsLike == bLike, TEXT("the active pane does not show what is expected of %s"), *Name);
	}

	void ExpectLog(const FString& Text)
	{
		const bool bIsThere = Log.ContainsByPredicate(
			[&Text](const FString& Line) { return std::wstring_view(*Line).find(*Text) != std::wstring_view::npos; });
		FDriverError::Unless(bIsThere, TEXT("the log does not hold \"%s\""), *Text);
	}

	/** A whole row, whatever its depth. */
	void ExpectMenu(const FString& Row)
	{
		std::wstring Rows = *(TEXT("\n") + Driver.Menus().Text());
		const bool bIsThere = Rows.find(*(TEXT("\n") + Row + TEXT("\n"))) != Rows.npos ||
							  Rows.find(*(TEXT("  ") + Row + TEXT("\n"))) != Rows.npos;
		std::replace(Rows.begin(), Rows.end(), L'\n', L'|');
		FDriverError::Unless(bIsThere, TEXT("no row of the open menus is \"%s\", only: %s"), *Row, Rows.c_str());
	}

	/** Line ends do not count. */
	void ExpectFile(const FString& File, const FString& Expected)
	{
		std::string Actual = ReadFile(InProject(*File));
		std::string Wanted = ReadFile(Story.Folder() / *Expected);
		std::erase(Actual, '\r');
		std::erase(Wanted, '\r');
		FDriverError::Unless(Actual == Wanted, TEXT("the file is another one:\n%s"), UTF8_TO_TCHAR(Actual.c_str()));
	}

	void Import(const FString& File, const FString& Folder)
	{
		if (!Driver.ImportFiles({InProject(*File).generic_wstring().c_str()}, Folder)[0])
		{
			throw FDriverError(File + TEXT(" is not imported"));
		}
	}

	void Export(const FString& Asset, const FString& File)
	{
		Driver.Export(Asset, InProject(*File).generic_wstring().c_str());
	}

	FEditorDriver Driver;

private:
	fs::path InProject(const fs::path& File) const { return fs::path(*Options.ProjectFolder) / File; }

	fs::path PictureFile(const FString& Name) const { return InProject("Saved/Pictures") / *(Name + TEXT(".png")); }

	/** Prints the step, and puts it into the report. */
	void Show(const FStoryStep& Step)
	{
		if (!Step.Narration.empty() && Driver.IsRunning() && !Report.HasFigure())
		{
			ShowWindow();
		}
		std::printf("%s\n", Step.Source.c_str());
		std::fflush(stdout);
		Report.AddStep(Step.Source, Step.Narration);
	}

	/** Puts what a user sees into the report; looking is no step, so nothing of it is logged. */
	void ShowWindow()
	{
		GLog->RemoveOutputDevice(this);
		Report.AddWindow(Driver);
		GLog->AddOutputDevice(this);
	}

	void Serialize(const TCHAR* Text, ELogVerbosity::Type, const FName& Category) override
	{
		Log.Add(Category.ToString() + TEXT(": ") + Text);
		std::printf("    %s\n", TCHAR_TO_UTF8(*Log.Last()));
	}

	const FStory& Story;
	FEngineLoopOptions Options;
	FReport& Report;

	/** What the last step that is no expectation logged. */
	TArray<FString> Log;
};

struct FVerb
{
	/** The fixed words at the front of a step. */
	std::string Words;

	int32 ArgumentCount;
	void (*Do)(FStoryPlayer& Player, const FArguments& Arguments);

	/** Whether the last argument may be repeated. */
	bool bTakesMore = false;

	bool bNeedsEditor = true;
};

using P = FStoryPlayer;
using A = const FArguments;

const std::vector<FVerb> Verbs{
	{"put file", 2, [](P& Player, A& Args) { Player.PutFile(Args[0], Args[1]); }, false, false},
	{StartVerb, 0, [](P& Player, A& Args) { Player.Start(Args); }, true, false},
	{"layout", 1, [](P& Player, A& Args) { Player.Driver.SetLayout(Args[0]); }},
	{"open pane", 1, [](P& Player, A& Args) { Player.OpenPane(Args[0]); }},
	{"close pane", 1, [](P& Player, A& Args) { Player.Driver.ClosePane(Args[0]); }},
	{"open menu", 1, [](P& Player, A& Args) { Player.OpenMenu(Args); }, true},
	{"click", 1, [](P& Player, A& Args) { Player.Driver.Menus().Click(Args[0]); }},
	{"create asset", 2, [](P& Player, A& Args) { Player.Driver.CreateAsset(Args[0], Args[1]); }},
	{"open assets", 1, [](P& Player, A& Args) { Player.Driver.OpenAssets(Args); }, true},
	{"import", 2, [](P& Player, A& Args) { Player.Import(Args[0], Args[1]); }},
	{"export", 2, [](P& Player, A& Args) { Player.Export(Args[0], Args[1]); }},
	{"edit", 3, [](P& Player, A& Args) { Player.Driver.Windows().EditProperty(Args[0], Args[1], Args[2]); }},
	{"slide", 2,
		[](P& Player, A& Args) { Player.Driver.Windows().MoveSlider(Args[0], std::wcstof(*Args[1], nullptr)); }},
	{"save picture", 1, [](P& Player, A& Args) { Player.SavePicture(Args); }, true},
	{"play", 0, [](P& Player, A&) { Player.Driver.PlayInPane(); }},
	{"stop", 0, [](P& Player, A&) { Player.Driver.EndPlay(); }},
	{QuitVerb, 0, [](P& Player, A&) { Player.Driver.Quit(); }},
	{"expect log", 1, [](P& Player, A& Args) { Player.ExpectLog(Args[0]); }, false, false},
	{"expect menu", 1, [](P& Player, A& Args) { Player.ExpectMenu(Args[0]); }},
	{"expect file", 2, [](P& Player, A& Args) { Player.ExpectFile(Args[0], Args[1]); }, false, false},
	{"expect picture like", 1, [](P& Player, A& Args) { Player.ExpectPicture(true, Args[0]); }},
	{"expect picture unlike", 1, [](P& Player, A& Args) { Player.ExpectPicture(false, Args[0]); }},
};

const FVerb& FindVerb(const FStory& Story, const FStoryStep& Step, FArguments& OutArguments)
{
	std::string Front;
	for (size_t Count = 1; Count <= Step.Words.size(); ++Count)
	{
		Front += (Front.empty() ? "" : " ") + Step.Words[Count - 1].Text;
		const auto Verb = std::find_if(
			Verbs.begin(), Verbs.end(), [&Front](const FVerb& Candidate) { return Candidate.Words == Front; });
		if (Verb == Verbs.end())
		{
			continue;
		}
		OutArguments.Empty();
		for (size_t Index = Count; Index < Step.Words.size(); ++Index)
		{
			OutArguments.Add(UTF8_TO_TCHAR(Step.Words[Index].Text.c_str()));
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

void FStoryPlayer::Play(size_t Session)
{
	FArguments Arguments;
	for (const FStoryStep& Step : Story.Steps())
	{
		if (Step.Session != Session)
		{
			continue;
		}
		const FVerb& Verb = FindVerb(Story, Step, Arguments);
		try
		{
			Show(Step);
			if (!Verb.Words.starts_with("expect"))
			{
				Log.Empty();
			}
			Verb.Do(*this, Arguments);
		}
		catch (const std::runtime_error& Failure)
		{
			throw Story.Error(Step, Step.Words[0].Column, Failure.what());
		}
	}
}
} // namespace

void CheckStory(const FStory& Story)
{
	FArguments Ignored;
	bool bIsRunning = false;
	for (const FStoryStep& Step : Story.Steps())
	{
		const FVerb& Verb = FindVerb(Story, Step, Ignored);
		const bool bStarts = Verb.Words == StartVerb;
		if (bStarts == bIsRunning && (bStarts || Verb.bNeedsEditor))
		{
			throw Story.Error(
				Step, Step.Words[0].Column, bStarts ? "the editor is running already" : "the editor is not running");
		}
		bIsRunning = bStarts || (bIsRunning && Verb.Words != QuitVerb);
	}
}

void PlayStory(const FStory& Story, size_t Session, const FEngineLoopOptions& Options, FReport& Report)
{
	FStoryPlayer Player(Story, Options, Report);
	if (Session == 0)
	{
		Player.ForgetProject();
	}
	Player.Play(Session);
}
