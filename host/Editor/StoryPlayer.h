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
	using FArguments = TArray<FString>;

	struct FVerb
	{
		/** The fixed words at the front of a step. */
		std::string Words;
		int32 ArgumentCount;
		void (*Do)(FStoryPlayer& Player, const FArguments& Arguments);

		/** Whether the last argument may be repeated. */
		bool bTakesMore = false;
	};

	static const std::vector<FVerb>& Verbs();
	static const FVerb& FindVerb(const FStory& Story, const FStoryStep& Step, FArguments& OutArguments);

	/** What earlier stories left in the project. */
	void ForgetProject();
	void PutFile(const FString& From, const FString& To);
	void Start(const FArguments& Arguments);
	void OpenPane(const FString& Key);
	void OpenMenu(const FArguments& Arguments);
	/** Of the active pane, unless a window is named. */
	void SavePicture(const FString& Name, const FString& Window);
	void Play(const FString& Where);
	void ExpectLog(const FString& Text);
	void ExpectMenu(const FString& Expected);
	void ExpectFile(const FString& File, const FString& Expected);
	void ExpectPicture(const FString& Likeness, const FString& Name);

	/** Where a story's picture lies. */
	FString PictureFile(const FString& Name) const;

	/** Prints the step, and puts it into the report. */
	void Show(const FStoryStep& Step) const;

	void Serialize(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category) override;

	FEngineLoopOptions Options;
	FReport Report;

	/** Of the story that is played. */
	FString StoryFolder;
	FEditorDriver Driver;

	/** What the last step that is no expectation logged. */
	TArray<FString> Log;
};
