// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Tonalith's editor module goes in a session and leaves nothing behind that the editor would show. Run it last.
#include "AssetToolsModule.h"
#include "CoreMinimal.h"
#include "Editor.h"
#include "Engine/GameViewportClient.h"
#include "IAssetTools.h"
#include "LookClass.h"
#include "Misc/AutomationTest.h"
#include "Modules/ModuleManager.h"
#include "Styling/SlateStyleRegistry.h"
#include "ToolMenus.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FTonalithUnloadTest, "Tonalith.ZLast.UnloadingTakesAllRegistrationsBack",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FTonalithUnloadTest::RunTest(const FString&)
{
	const void* const Module = FModuleManager::Get().GetModule("TonalithEditor");
	if (!TestNotNull(TEXT("the module"), Module))
	{
		return false;
	}
	FModuleManager::Get().UnloadModule("TonalithEditor");
	// The module leaves these to whoever unloads it: the session goes on, and would reach it.
	GEditor->OnLevelViewportClientListChanged().RemoveAll(Module);
	FEditorDelegates::PreBeginPIE.RemoveAll(Module);
	FEditorDelegates::PostPIEStarted.RemoveAll(Module);
	UGameViewportClient::OnViewportCreated().RemoveAll(Module);

	IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools").Get();
	TestFalse(TEXT("looks still have a type"), AssetTools.GetAssetTypeActionsForClass(FindLookClass()).IsValid());
	TestTrue(TEXT("the style set is gone"), FSlateStyleRegistry::FindSlateStyle("TonalithStyle") == nullptr);
	UToolMenu* const ViewMenu = UToolMenus::Get()->FindMenu("LevelEditor.LevelViewportToolBar.View");
	const FToolMenuSection* const Section = ViewMenu ? ViewMenu->FindSection("ColorManagement") : nullptr;
	TestFalse(TEXT("the sub-menu is still there"), Section && Section->FindEntry("TNLDisplaySubMenu"));
	return true;
}

#endif
