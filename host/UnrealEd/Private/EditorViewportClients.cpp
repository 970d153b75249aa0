// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Editor.h"
#include "Host/SceneRenderer.h"
#include "LevelEditorViewport.h"

FLevelEditorViewportClient* GCurrentLevelEditingViewportClient = nullptr;

FEditorViewportClient::FEditorViewportClient(const TWeakPtr<SEditorViewport>& InEditorViewportWidget)
	: EditorViewportWidget(InEditorViewportWidget)
{
	GEditor->AddViewportClients(this);
}

FEditorViewportClient::~FEditorViewportClient()
{
	checkf(Viewport == nullptr, TEXT("The viewport of a client must be gone before the client."));
	GEditor->RemoveViewportClients(this);
}

void FEditorViewportClient::Draw(FViewport* InViewport, FCanvas* Canvas)
{
	HostScene::Draw(*InViewport, *Canvas);
}

FLevelEditorViewportClient::~FLevelEditorViewportClient()
{
	if (GCurrentLevelEditingViewportClient == this)
	{
		GCurrentLevelEditingViewportClient = nullptr;
	}
	GEditor->RemoveLevelViewportClients(this);
}
