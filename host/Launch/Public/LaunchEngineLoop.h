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
	/** What is wrong with a plug-in is thrown as std::runtime_error with one line; the process should then end. */
	LAUNCH_API void Init(const FEngineLoopOptions& Options);
	LAUNCH_API void Tick() noexcept;
	LAUNCH_API void Exit() noexcept;

private:
	void MakeEditor() noexcept;

	bool bIsCommandlet = false;
};
