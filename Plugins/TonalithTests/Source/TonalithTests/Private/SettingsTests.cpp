// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The settings file of a project: every level viewport is in it, under its place in the layout.
#include "CoreMinimal.h"
#include "Editor.h"
#include "LevelEditorViewport.h"
#include "Misc/AutomationTest.h"
#include "Misc/ConfigCacheIni.h"
#include "SLevelViewport.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FTonalithSettingsTest, "Tonalith.Settings.HoldEveryLevelViewport",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FTonalithSettingsTest::RunTest(const FString&)
{
	// A viewport that was opened last waits for the next change of the list.
	GEditor->OnLevelViewportClientListChanged().Broadcast();
	TArray<FString> Lines;
	GConfig->GetArray(TEXT("/Script/TonalithEditor.TonalithLevelViewportSettings"), TEXT("ViewportsSettings"), Lines,
		GEditorPerProjectIni);
	int32 Viewports = 0;
	for (FLevelEditorViewportClient* const Client : GEditor->GetLevelViewportClients())
	{
		const TSharedPtr<SEditorViewport> Widget = Client->GetEditorViewportWidget();
		if (!Widget.IsValid())
		{
			continue;
		}
		++Viewports;
		const FString Key = StaticCastSharedPtr<SLevelViewport>(Widget)->GetConfigKey().ToString();
		const FString Begin = FString::Printf(TEXT("(ViewportIdentifier=\"%s\","), *Key);
		const bool bIsStored =
			Lines.ContainsByPredicate([&Begin](const FString& Line) { return Line.StartsWith(Begin); });
		TestTrue(*Key, bIsStored);
	}
	TestTrue(TEXT("a level viewport is open"), Viewports > 0);
	return true;
}

#endif
