// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "IAssetViewport.h"
#include "LevelEditorViewport.h"

UEditorEngine* GEditor = nullptr;
FLevelEditorViewportClient* GCurrentLevelEditingViewportClient = nullptr;

void UEditorEngine::Tick()
{
	TickPlaySession();
	if (bRedrawRequested)
	{
		bRedrawRequested = false;
		for (const FEditorViewportClient* Client : AllViewportClients)
		{
			if (Client->Viewport)
			{
				Client->Viewport->Draw();
			}
		}
	}
}

TSharedPtr<IAssetViewport> UEditorEngine::GetActivePane() const
{
	if (LevelViewportClients.IsEmpty())
	{
		return nullptr;
	}
	const FLevelEditorViewportClient* Current = GCurrentLevelEditingViewportClient;
	return std::dynamic_pointer_cast<IAssetViewport>(
		(Current ? Current : LevelViewportClients[0])->GetEditorViewportWidget());
}

FViewport* UEditorEngine::GetActiveViewport()
{
	const TSharedPtr<IAssetViewport> Pane = GetActivePane();
	return Pane.IsValid() ? Pane->GetActiveViewport() : nullptr;
}
