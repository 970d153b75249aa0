// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SLevelViewport.h"

#include "Editor.h"
#include "Framework/Application/SlateApplication.h"
#include "ToolMenus.h"

// Here, where the pane's type is known.
FLevelEditorViewportClient::FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& InLevelViewport)
	: FEditorViewportClient(InLevelViewport)
{
	GEditor->AddLevelViewportClients(this);
}

void SLevelViewport::Construct(const FAssetEditorViewportConstructionArgs& InConstructionArgs)
{
	ConfigKey = InConstructionArgs.ConfigKey;
	ConstructViewport();
}

void SLevelViewport::OpenViewMenu()
{
	FSlateApplication::Get().PushMenu(ViewMenuName, AsShared(),
		FMakeMenuContent::CreateLambda(
			[] { return UToolMenus::Get()->GenerateWidget(ViewMenuName, FToolMenuContext()); }));
}

TSharedRef<FEditorViewportClient> SLevelViewport::MakeEditorViewportClient()
{
	return MakeShared<FLevelEditorViewportClient>(StaticCastSharedRef<SLevelViewport>(AsShared()));
}
