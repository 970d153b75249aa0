// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SEditorViewport.h"

#include "EditorViewportClient.h"
#include "Slate/SceneViewport.h"

SEditorViewport::~SEditorViewport()
{
	if (Client.IsValid())
	{
		Client->Viewport = nullptr;
		Client.Reset();
	}
}

void SEditorViewport::ConstructViewport()
{
	Client = MakeEditorViewportClient();
	SceneViewport = MakeShared<FSceneViewport>(Client.Get());
	Client->Viewport = SceneViewport.Get();
}
