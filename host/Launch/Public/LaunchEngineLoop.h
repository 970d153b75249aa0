// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The editor's life: start, ticks, exit, each in the engine's order.
#pragma once

#include "CoreMinimal.h"
#include "Host/SceneRenderer.h"

struct FEngineLoopOptions
{
	/** Where assets and settings are kept; made when missing. */
	FString ProjectFolder;

	/** Folders whose sub-folders hold plug-ins. */
	TArray<FString> PluginFolders;

	/** The editor's culture, such as "en" or "fr-CA". */
	FString Culture = TEXT("en");

	EHostScene Scene = EHostScene::Chart;

	/** Without user interface and editor engine; the engine loop never reports completion. */
	bool bIsCommandlet = false;
};

/** One a process. Game thread. An exception that comes out of a module ends the process. */
class FEngineLoop
{
public:
	/** @return false with one line in OutError (file, place, reason); the process should then end */
	LAUNCH_API bool Init(const FEngineLoopOptions& Options, FString& OutError) noexcept;
	LAUNCH_API void Tick() noexcept;
	LAUNCH_API void Exit() noexcept;

private:
	void Start(const TArray<FString>& PluginFolders);
	void LoadPhases(std::initializer_list<const TCHAR*> Phases);
	void MakeEditor() noexcept;

	bool bIsCommandlet = false;
};
