// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LevelEditor.h"

#include "SLevelViewport.h"
#include "ToolMenus.h"

IMPLEMENT_HOST_MODULE(FLevelEditorModule, LevelEditor)

void FLevelEditorModule::StartupModule()
{
	const FToolMenuOwnerScoped Owner(this);
	FToolMenuSection& Section = UToolMenus::Get()
									->RegisterMenu(SLevelViewport::ViewMenuName)
									->AddSection("LevelViewportView", FText::FromString(TEXT("View")));
	Section.AddMenuEntry("ToggleRealtime", FText::FromString(TEXT("Realtime")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction::CreateLambda([this] { bIsRealtime = !bIsRealtime; }), FCanExecuteAction(),
			FIsActionChecked::CreateLambda([this] { return bIsRealtime; })),
		EUserInterfaceActionType::ToggleButton);
}

TSharedPtr<IAssetViewport> FLevelEditorModule::GetFirstActiveViewport() const
{
	for (const TSharedPtr<SLevelViewport>& Pane : Panes)
	{
		if (&Pane->GetLevelViewportClient() == GCurrentLevelEditingViewportClient)
		{
			return Pane;
		}
	}
	return Panes.IsEmpty() ? nullptr : TSharedPtr<IAssetViewport>(Panes[0]);
}

TSharedRef<SLevelViewport> FLevelEditorModule::OpenPane(FName ConfigKey)
{
	const TSharedRef<SLevelViewport> Pane = MakeShared<SLevelViewport>();
	Pane->Construct({ConfigKey});
	Panes.Add(Pane);
	GCurrentLevelEditingViewportClient = &Pane->GetLevelViewportClient();
	return Pane;
}

bool FLevelEditorModule::SetLayout(const FString& Layout)
{
	static const TMap<FString, int32> PaneCounts = []
	{
		TMap<FString, int32> Counts;
		Counts.Add(TEXT("OnePane"), 1);
		Counts.Add(TEXT("TwoPanesHoriz"), 2);
		Counts.Add(TEXT("FourPanes2x2"), 4);
		return Counts;
	}();
	const int32* Count = PaneCounts.Find(Layout);
	if (!Count)
	{
		return false;
	}
	const int32 OldCount = Panes.Num();
	for (int32 Index = 0; Index < *Count; ++Index)
	{
		OpenPane(FName(*FString::Printf(TEXT("%s.Viewport 1.Viewport%d"), *Layout, Index)));
	}
	for (int32 Index = 0; Index < OldCount; ++Index)
	{
		ClosePane(Panes[0].ToSharedRef());
	}
	return true;
}

TSharedPtr<SLevelViewport> FLevelEditorModule::FindPane(FName ConfigKey) const
{
	const TSharedPtr<SLevelViewport>* Found = Panes.FindByPredicate(
		[ConfigKey](const TSharedPtr<SLevelViewport>& Pane) { return Pane->GetConfigKey() == ConfigKey; });
	return Found ? *Found : nullptr;
}

void FLevelEditorModule::ClosePane(TSharedRef<SLevelViewport> Pane)
{
	// Out of the list before it dies: its events ask for the active viewport.
	Panes.Remove(Pane);
}

void FLevelEditorModule::CloseAllPanes()
{
	while (!Panes.IsEmpty())
	{
		ClosePane(Panes[0].ToSharedRef());
	}
}
