// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Plays a story through the driver and prints each step with what the editor logged meanwhile.
#pragma once

#include "EditorDriver.h"
#include "Misc/OutputDevice.h"
#include "Report.h"
#include "Story.h"

class FStoryPlayer : private FOutputDevice
{
public:
	FStoryPlayer(const FEngineLoopOptions& InOptions, const FReport& InReport);
	~FStoryPlayer() override;

	/** Checks all steps. Throws FStoryError at the first one that is wrong. */
	static void Check(const FStory& Story);

	/** Plays one session of a checked story. Throws FStoryError at the first step that fails. */
	void Play(const FStory& Story, size_t Session);

private:
	using FArguments = std::vector<std::string>;

	struct FVerb
	{
		/** The fixed words at the front of a step. */
		std::string Words;
		size_t ArgumentCount;
		void (FStoryPlayer::*Do)(const FArguments& Arguments);

		/** Whether the last argument may be repeated. */
		bool bTakesMore = false;
	};

	static const std::vector<FVerb>& Verbs();
	static const FVerb& FindVerb(const FStory& Story, const FStoryStep& Step, FArguments& OutArguments);

	void NewProject(const FArguments& Arguments);
	void Asset(const FArguments& Arguments);
	void PutFile(const FArguments& Arguments);
	void Start(const FArguments& Arguments);
	void Layout(const FArguments& Arguments);
	void OpenPane(const FArguments& Arguments);
	void ClosePane(const FArguments& Arguments);
	void ActivatePane(const FArguments& Arguments);
	void OpenMenu(const FArguments& Arguments);
	void Click(const FArguments& Arguments);
	void CreateAsset(const FArguments& Arguments);
	void OpenAssets(const FArguments& Arguments);
	void SavePicture(const FArguments& Arguments);
	void PlayIn(const FArguments& Arguments);
	void EndPlay(const FArguments& Arguments);
	void Quit(const FArguments& Arguments);
	void ExpectLog(const FArguments& Arguments);
	void ExpectMenu(const FArguments& Arguments);
	void ExpectFile(const FArguments& Arguments);
	void ExpectPicture(const FArguments& Arguments);

	/** Where a story's picture lies. */
	FString PictureFile(const std::string& Name) const;

	/** Prints the step, and puts it into the report. */
	void Show(const FStoryStep& Step) const;

	void Serialize(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category) override;

	FEngineLoopOptions Options;
	FReport Report;

	/** Of the story that is played. */
	FString StoryFolder;
	FEditorDriver Driver;

	/** What the last step that is no expectation logged; UTF-8. */
	std::vector<std::string> Log;
};
