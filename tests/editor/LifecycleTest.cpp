// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The editor module's start and both ways of its end, as the host's trace shows them.
#include "Editor.h"
#include "EditorTest.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class Lifecycle : public FEditorTest
{
};

TEST_F(Lifecycle, StartBindsWorldsThenTheEngineLoopThenTheEditor)
{
	Driver.Start(Options);
	EXPECT_THAT(
		TakeTrace(), ElementsAre("load library Tonalith", "start module Tonalith",
						 "bind FCoreDelegates::OnPostEngineInit", "load library TonalithEditor",
						 "start module TonalithEditor", "bind FWorldDelegates::OnPreWorldInitialization",
						 "start module AssetTools", "register asset type TonalithObject",
						 "bind FCoreDelegates::OnFEngineLoopInitComplete", "register style TonalithStyle",
						 "start module ToolMenus", "extend menu LevelEditor.LevelViewportToolBar.View",
						 "add sub-menu TNLDisplaySubMenu", "make the editor engine", "start module PropertyEditor",
						 "start module LevelEditor", "register menu LevelEditor.LevelViewportToolBar.View",
						 "broadcast FWorldDelegates::OnPreWorldInitialization", "bind UWorld::OnFeatureLevelChanged",
						 "broadcast FCoreDelegates::OnPostEngineInit", "register view extension",
						 "broadcast FCoreDelegates::OnFEngineLoopInitComplete",
						 "bind UEditorEngine::OnLevelViewportClientListChanged", "bind FEditorDelegates::PreBeginPIE",
						 "bind FEditorDelegates::PostPIEStarted", "bind UGameViewportClient::CreatedDelegate"));
	Driver.Quit();
}

TEST_F(Lifecycle, NormalExitFindsObjectsAndAssetToolsGone)
{
	Driver.Start(Options);
	TakeTrace();
	Driver.Quit();
	EXPECT_THAT(
		TakeTrace(), ElementsAre("editor exit", "shut down module AssetTools", "broadcast FCoreDelegates::OnPreExit",
						 "broadcast FCoreDelegates::OnExit", "purge objects", "shut down module LevelEditor",
						 "shut down module PropertyEditor", "shut down module TonalithEditor",
						 "unregister style TonalithStyle", "unbind FWorldDelegates::OnPreWorldInitialization (1)",
						 "unbind FCoreDelegates::OnFEngineLoopInitComplete (1)", "shut down module ToolMenus",
						 "shut down module Tonalith", "unbind FCoreDelegates::OnPostEngineInit (1)"));
}

TEST_F(Lifecycle, UnloadingInASessionRunsEveryStepAndLeavesFourBindings)
{
	Driver.Start(Options);
	Driver.OpenPane(TEXT("OnePane.Viewport 1.Viewport0"));
	Driver.PlayInPane();
	Driver.EndPlay();
	Driver.ClosePane(TEXT("OnePane.Viewport 1.Viewport0"));
	const void* Module = FModuleManager::Get().GetModule("TonalithEditor");
	TakeTrace();
	Driver.UnloadModule(TEXT("TonalithEditor"));
	EXPECT_THAT(TakeTrace(),
		ElementsAre("shut down module TonalithEditor", "unbind UEditorEngine::OnViewportClientListChanged (0)",
			"unregister menu owner", "unregister style TonalithStyle", "unregister asset type TonalithObject",
			"unbind UWorld::OnFeatureLevelChanged (1)", "unbind FWorldDelegates::OnPreWorldInitialization (1)",
			"unbind FCoreDelegates::OnFEngineLoopInitComplete (1)"));

	EXPECT_TRUE(GEditor->OnLevelViewportClientListChanged().IsBoundToObject(Module));
	EXPECT_TRUE(FEditorDelegates::PreBeginPIE.IsBoundToObject(Module));
	EXPECT_TRUE(FEditorDelegates::PostPIEStarted.IsBoundToObject(Module));
	EXPECT_TRUE(UGameViewportClient::OnViewportCreated().IsBoundToObject(Module));
	EXPECT_FALSE(GEditor->OnViewportClientListChanged().IsBoundToObject(Module));
	EXPECT_FALSE(FWorldDelegates::OnPreWorldInitialization.IsBoundToObject(Module));
	EXPECT_FALSE(FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(Module));
	for (auto* Other : {&FEditorDelegates::StartPIE, &FEditorDelegates::BeginPIE, &FEditorDelegates::PrePIEEnded,
			 &FEditorDelegates::EndPIE, &FEditorDelegates::ShutdownPIE})
	{
		EXPECT_FALSE(Other->IsBoundToObject(Module));
	}

	Driver.Quit();
	const FLines Exit = TakeTrace();
	for (const char* Stale : {"OnLevelViewportClientListChanged", "PreBeginPIE", "PostPIEStarted", "CreatedDelegate"})
	{
		EXPECT_THAT(Exit, Not(Contains(HasSubstr(Stale))));
	}
}

TEST_F(Lifecycle, CommandletGetsAlongWithoutEditor)
{
	Options.bIsCommandlet = true;
	Driver.Start(Options);
	EXPECT_EQ(GEditor, nullptr);
	EXPECT_THAT(TakeTrace(), ElementsAre("load library Tonalith", "start module Tonalith",
								 "bind FCoreDelegates::OnPostEngineInit", "load library TonalithEditor",
								 "start module TonalithEditor", "bind FWorldDelegates::OnPreWorldInitialization",
								 "start module AssetTools", "register asset type TonalithObject",
								 "bind FCoreDelegates::OnFEngineLoopInitComplete", "register style TonalithStyle",
								 "start module ToolMenus", "extend menu LevelEditor.LevelViewportToolBar.View",
								 "add sub-menu TNLDisplaySubMenu", "broadcast FCoreDelegates::OnPostEngineInit"));
	Driver.Quit();
	EXPECT_THAT(
		TakeTrace(), ElementsAre("editor exit", "shut down module AssetTools", "broadcast FCoreDelegates::OnPreExit",
						 "broadcast FCoreDelegates::OnExit", "purge objects", "shut down module TonalithEditor",
						 "unregister style TonalithStyle", "unbind FWorldDelegates::OnPreWorldInitialization (1)",
						 "unbind FCoreDelegates::OnFEngineLoopInitComplete (1)", "shut down module ToolMenus",
						 "shut down module Tonalith", "unbind FCoreDelegates::OnPostEngineInit (1)"));
}

TEST_F(Lifecycle, ExitWithPanesAndPlayUnderWayStillReachesTheModule)
{
	Driver.Start(Options);
	Driver.OpenPane(TEXT("OnePane.Viewport 1.Viewport0"));
	Driver.PlayInWindow();
	TakeTrace();
	Driver.Quit();
	const FLines Exit = TakeTrace();
	EXPECT_THAT(Exit, Contains("broadcast FEditorDelegates::ShutdownPIE"));
	EXPECT_THAT(Exit, Contains("broadcast UEditorEngine::OnLevelViewportClientListChanged"));
	EXPECT_THAT(Exit, Contains("shut down module Tonalith"));
}
