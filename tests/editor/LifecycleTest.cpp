// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The plug-in's start and both ways of its end, and the world that it watches, as the host's trace shows them.
#include "Editor.h"
#include "EditorTest.h"
#include "Engine/World.h"
#include "Modules/ModuleManager.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class Lifecycle : public FEditorTest
{
};

TEST_F(Lifecycle, StartAndNormalExitRunInTheirOrder)
{
	Driver.Start(Options);
	EXPECT_THAT(
		TakeTrace(), ElementsAre("load library Tonalith", "start module Tonalith",
						 "bind FCoreDelegates::OnPostEngineInit", "load library TonalithEditor",
						 "start module TonalithEditor", "bind FWorldDelegates::OnPreWorldInitialization",
						 "start module AssetTools", "register asset type TonalithObject",
						 "bind FCoreDelegates::OnFEngineLoopInitComplete", "register style TonalithStyle",
						 "start module ToolMenus", "extend menu LevelEditor.LevelViewportToolBar.View",
						 "add sub-menu TNLDisplaySubMenu", "load library TonalithLookFiles",
						 "start module TonalithLookFiles", "make the editor engine", "start module PropertyEditor",
						 "start module LevelEditor", "register menu LevelEditor.LevelViewportToolBar.View",
						 "broadcast FWorldDelegates::OnPreWorldInitialization", "bind UWorld::OnFeatureLevelChanged",
						 "broadcast FCoreDelegates::OnPostEngineInit", "register view extension",
						 "bind UEditorEngine::OnViewportClientListChanged", "bind FEditorDelegates::ShutdownPIE",
						 "broadcast FCoreDelegates::OnFEngineLoopInitComplete",
						 "bind UEditorEngine::OnLevelViewportClientListChanged", "bind FEditorDelegates::PreBeginPIE",
						 "bind FEditorDelegates::PostPIEStarted", "bind UGameViewportClient::CreatedDelegate"));
	// By then the objects and the asset tools are gone.
	Driver.Quit();
	EXPECT_THAT(TakeTrace(),
		ElementsAre("editor exit", "shut down module AssetTools", "broadcast FCoreDelegates::OnPreExit",
			"broadcast FCoreDelegates::OnExit", "purge objects", "shut down module LevelEditor",
			"shut down module PropertyEditor", "shut down module TonalithLookFiles", "shut down module TonalithEditor",
			"unregister style TonalithStyle", "unbind FWorldDelegates::OnPreWorldInitialization (1)",
			"unbind FCoreDelegates::OnFEngineLoopInitComplete (1)", "shut down module ToolMenus",
			"shut down module Tonalith", "unbind FCoreDelegates::OnPostEngineInit (1)",
			"unbind FEditorDelegates::ShutdownPIE (1)"));
}

TEST_F(Lifecycle, UnloadingInASessionRunsEveryStepAndLeavesFourBindings)
{
	Driver.Start(Options);
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
}

TEST_F(Lifecycle, OneEditorWorldIsWatchedAtATime)
{
	const char* const Announced = "broadcast FWorldDelegates::OnPreWorldInitialization";
	Driver.Start(Options);
	TakeTrace();
	UWorld& Second = Driver.MakeWorld(EWorldType::Editor);
	EXPECT_THAT(TakeTrace(),
		ElementsAre(Announced, "unbind UWorld::OnFeatureLevelChanged (1)", "bind UWorld::OnFeatureLevelChanged"));
	Second.ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);

	// A dead world is not touched.
	Driver.DestroyWorld(Second);
	TakeTrace();
	UWorld& Third = Driver.MakeWorld(EWorldType::Editor);
	EXPECT_THAT(TakeTrace(), ElementsAre(Announced, "bind UWorld::OnFeatureLevelChanged"));

	for (const EWorldType::Type Other : {EWorldType::None, EWorldType::Game, EWorldType::PIE, EWorldType::EditorPreview,
			 EWorldType::GamePreview, EWorldType::GameRPC, EWorldType::Inactive})
	{
		Driver.MakeWorld(Other);
		EXPECT_THAT(TakeTrace(), ElementsAre(Announced)) << Other;
	}
	FWorldDelegates::OnPreWorldInitialization.Broadcast(nullptr, UWorld::InitializationValues());
	EXPECT_THAT(TakeTrace(), ElementsAre(Announced));

	Driver.DestroyWorld(Third);
	Driver.UnloadModule(TEXT("TonalithEditor"));
	EXPECT_THAT(TakeTrace(), Not(Contains(HasSubstr("UWorld::"))));
}
