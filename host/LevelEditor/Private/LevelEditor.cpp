// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LevelEditor.h"

#include "SLevelViewport.h"
#include "ToolMenus.h"
#include <map>

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
	return GEditor->GetActivePane();
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
	const std::map<FString, int32> PaneCounts{
		{TEXT("OnePane"), 1}, {TEXT("TwoPanesHoriz"), 2}, {TEXT("FourPanes2x2"), 4}};
	const auto Found = PaneCounts.find(Layout);
	if (Found == PaneCounts.end())
	{
		return false;
	}
	const int32 OldCount = Panes.Num();
	for (int32 Index = 0; Index < Found->second; ++Index)
	{
		OpenPane(FName(*FString::Printf(TEXT("%s.Viewport 1.Viewport%d"), *Layout, Index)));
	}
	for (int32 Index = 0; Index < OldCount; ++Index)
	{
		ClosePane(*Panes[0]);
	}
	return true;
}

TSharedPtr<SLevelViewport> FLevelEditorModule::FindPane(FName ConfigKey) const
{
	const TSharedPtr<SLevelViewport>* Found = Panes.FindByPredicate(
		[ConfigKey](const TSharedPtr<SLevelViewport>& Pane) { return Pane->GetConfigKey() == ConfigKey; });
	return Found ? *Found : nullptr;
}

void FLevelEditorModule::ClosePane(SLevelViewport& Pane)
{
	// Out of the list before it dies: its events ask for the active viewport.
	const TSharedRef<SWidget> Closing = Pane.AsShared();
	Panes.Remove(StaticCastSharedRef<SLevelViewport>(Closing));
}

void FLevelEditorModule::CloseAllPanes()
{
	while (!Panes.IsEmpty())
	{
		ClosePane(*Panes[0]);
	}
}
