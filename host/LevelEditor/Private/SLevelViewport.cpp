// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SLevelViewport.h"

#include "Framework/Application/SlateApplication.h"
#include "ToolMenus.h"

// The client of a pane: here, where the pane's type is known.
FLevelEditorViewportClient::FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& InLevelViewport)
	: FEditorViewportClient(InLevelViewport)
{
	GEditor->AddLevelViewportClients(this);
}

FLevelEditorViewportClient::~FLevelEditorViewportClient()
{
	if (GCurrentLevelEditingViewportClient == this)
	{
		GCurrentLevelEditingViewportClient = nullptr;
	}
	GEditor->RemoveLevelViewportClients(this);
}

void SLevelViewport::Construct(const FAssetEditorViewportConstructionArgs& InConstructionArgs)
{
	ConfigKey = InConstructionArgs.ConfigKey;
	// The client first; its viewport follows, so that the client's creation events see none.
	Client = MakeShared<FLevelEditorViewportClient>(StaticCastSharedRef<SLevelViewport>(AsShared()));
	SceneViewport = MakeShared<FSceneViewport>(Client.Get());
	Client->Viewport = SceneViewport.Get();
}

void SLevelViewport::OpenViewMenu()
{
	FSlateApplication::Get().PushMenu(ViewMenuName, AsShared(),
		FMakeMenuContent::CreateLambda(
			[] { return UToolMenus::Get()->GenerateWidget(ViewMenuName, FToolMenuContext()); }));
}
