// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Which world the editor module watches.
#include "EditorTest.h"
#include "Engine/World.h"

using testing::ElementsAre;

class EditorWorld : public FEditorTest
{
protected:
	EditorWorld()
	{
		Driver.Start(Options);
		TakeTrace();
	}
};

TEST_F(EditorWorld, AnotherEditorWorldTakesOver)
{
	UWorld& Second = Driver.MakeWorld(EWorldType::Editor);
	EXPECT_THAT(TakeTrace(), ElementsAre("broadcast FWorldDelegates::OnPreWorldInitialization",
								 "unbind UWorld::OnFeatureLevelChanged (1)", "bind UWorld::OnFeatureLevelChanged"));

	// A dead world is not touched.
	Driver.DestroyWorld(Second);
	UWorld& Third = Driver.MakeWorld(EWorldType::Editor);
	EXPECT_THAT(TakeTrace(),
		ElementsAre("broadcast FWorldDelegates::OnPreWorldInitialization", "bind UWorld::OnFeatureLevelChanged"));

	Third.ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	Driver.DestroyWorld(Third);
	TakeTrace();
	Driver.UnloadModule(TEXT("TonalithEditor"));
	EXPECT_THAT(TakeTrace(),
		ElementsAre("shut down module TonalithEditor", "unbind UEditorEngine::OnViewportClientListChanged (0)",
			"unregister menu owner", "unregister style TonalithStyle", "unregister asset type TonalithObject",
			"unbind FWorldDelegates::OnPreWorldInitialization (1)",
			"unbind FCoreDelegates::OnFEngineLoopInitComplete (1)"));
}

TEST_F(EditorWorld, OtherWorldsAreIgnored)
{
	for (const EWorldType::Type Type : {EWorldType::None, EWorldType::Game, EWorldType::PIE, EWorldType::EditorPreview,
			 EWorldType::GamePreview, EWorldType::GameRPC, EWorldType::Inactive})
	{
		Driver.MakeWorld(Type);
		EXPECT_THAT(TakeTrace(), ElementsAre("broadcast FWorldDelegates::OnPreWorldInitialization")) << Type;
	}
	FWorldDelegates::OnPreWorldInitialization.Broadcast(nullptr, UWorld::InitializationValues());
	EXPECT_THAT(TakeTrace(), ElementsAre("broadcast FWorldDelegates::OnPreWorldInitialization"));
}
