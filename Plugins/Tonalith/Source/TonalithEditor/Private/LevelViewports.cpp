// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Editor.h"
#include "LevelEditorViewport.h"
#include "TonalithDisplayManager.h"
#include "TonalithEditorModule.h"
#include "TonalithRuntime.h"

void FTonalithEditorModule::OnLevelViewportClientListChanged()
{
	FTonalithDisplayManager& DisplayManager = GetTonalithDisplayManager();
	const TArray<FLevelEditorViewportClient*> Clients = GEditor->GetLevelViewportClients();
	for (int32 Index = 0; Index < TrackedViewports.Num(); ++Index)
	{
		FViewportClient* const Client = TrackedViewports[Index].Client;
		if (!Clients.ContainsByPredicate([Client](const FViewportClient* Other) { return Other == Client; }))
		{
			DisplayManager.RemoveDisplayConfiguration(Client);
			TrackedViewports.RemoveAt(Index--);
		}
	}
	for (FLevelEditorViewportClient* Client : Clients)
	{
		if (!TrackedViewports.ContainsByPredicate(
				[Client](const FTrackedViewport& Tracked) { return Tracked.Client == Client; }))
		{
			TrackedViewports.Add({Client});
		}
	}
}
