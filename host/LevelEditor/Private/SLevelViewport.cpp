// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SLevelViewport.h"

#include "Framework/Application/SlateApplication.h"
#include "ToolMenus.h"

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

FViewport* SLevelViewport::GetActiveViewport()
{
	return PlayViewport.IsValid() ? PlayViewport.Get() : SceneViewport.Get();
}

void SLevelViewport::StartPlayInEditorSession(const TSharedPtr<FSceneViewport>& InPlayViewport)
{
	PlayViewport = InPlayViewport;
}

void SLevelViewport::EndPlayInEditorSession()
{
	PlayViewport.Reset();
}
