// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Editor.h"
#include "IAssetViewport.h"
#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"

UEditorEngine* GEditor = nullptr;

void UEditorEngine::AddViewportClients(FEditorViewportClient* ViewportClient)
{
	AllViewportClients.Add(ViewportClient);
	ViewportClientListChangedEvent.Broadcast();
}

void UEditorEngine::RemoveViewportClients(FEditorViewportClient* ViewportClient)
{
	AllViewportClients.Remove(ViewportClient);
	ViewportClientListChangedEvent.Broadcast();
}

void UEditorEngine::AddLevelViewportClients(FLevelEditorViewportClient* ViewportClient)
{
	LevelViewportClients.Add(ViewportClient);
	LevelViewportClientListChangedEvent.Broadcast();
}

void UEditorEngine::RemoveLevelViewportClients(FLevelEditorViewportClient* ViewportClient)
{
	LevelViewportClients.Remove(ViewportClient);
	LevelViewportClientListChangedEvent.Broadcast();
}

void UEditorEngine::RedrawAllViewports(bool)
{
	bRedrawRequested = true;
}

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

FViewport* UEditorEngine::GetActiveViewport()
{
	const FLevelEditorModule& LevelEditor = FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor");
	const TSharedPtr<IAssetViewport> Pane = LevelEditor.GetFirstActiveViewport();
	return Pane.IsValid() ? Pane->GetActiveViewport() : nullptr;
}

FViewport* UEditorEngine::GetPIEViewport()
{
	return GameViewport ? GameViewport->Viewport : nullptr;
}
