// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SLevelViewport.h"

void SLevelViewport::Construct(const FAssetEditorViewportConstructionArgs& InConstructionArgs)
{
	ConfigKey = InConstructionArgs.ConfigKey;
	ConstructViewport();
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
