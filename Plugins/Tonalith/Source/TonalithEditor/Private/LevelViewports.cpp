// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Editor.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "TonalithDisplayManager.h"
#include "TonalithEditorModule.h"
#include "TonalithEditorSettings.h"
#include "TonalithRuntime.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** Every widget of a client in the level list is a pane of the level editor. */
FName ConfigKeyOf(const TSharedPtr<SEditorViewport>& Widget)
{
	return StaticCastSharedPtr<SLevelViewport>(Widget)->GetConfigKey();
}

void Store(FName ViewportIdentifier, const FTonalithDisplayConfiguration& Configuration)
{
	UTonalithLevelViewportSettings* Settings = GetMutableDefault<UTonalithLevelViewportSettings>();
	Settings->SetDisplayConfiguration(ViewportIdentifier, Configuration);
	Settings->SaveConfig();
}
} // namespace

void FTonalithEditorModule::OnLevelViewportClientListChanged()
{
	FTonalithDisplayManager& DisplayManager = GetTonalithDisplayManager();
	// A copy: saving may run code that changes the list.
	const TArray<FLevelEditorViewportClient*> Clients = GEditor->GetLevelViewportClients();
	SaveGoneViewports(DisplayManager, Clients);
	for (FLevelEditorViewportClient* Client : Clients)
	{
		SetupViewportDisplaySettings(Client);
	}
}

void FTonalithEditorModule::SaveGoneViewports(
	FTonalithDisplayManager& DisplayManager, const TArray<FLevelEditorViewportClient*>& Clients)
{
	for (int32 Index = 0; Index < TrackedViewports.Num(); ++Index)
	{
		const FTrackedViewport Tracked = TrackedViewports[Index];
		if (Clients.Contains(Tracked.Client))
		{
			continue;
		}
		if (const FTonalithDisplayConfiguration* Configuration = DisplayManager.GetDisplayConfiguration(Tracked.Client))
		{
			Store(Tracked.ViewportIdentifier, *Configuration);
			DisplayManager.RemoveDisplayConfiguration(Tracked.Client);
			UE_LOG(LogTemp, Warning, TEXT("OnLevelViewportClientListChanged"));
		}
		TrackedViewports.RemoveAt(Index--);
	}
}

void FTonalithEditorModule::SetupViewportDisplaySettings(FLevelEditorViewportClient* Client)
{
	if (IsTracked(Client))
	{
		return;
	}
	const TSharedPtr<SEditorViewport> Widget = Client->GetEditorViewportWidget();
	if (!Widget.IsValid())
	{
		return;
	}
	FTonalithDisplayConfiguration& Configuration = GetTonalithDisplayManager().FindOrAddDisplayConfiguration(Client);
	const FName ViewportIdentifier = ConfigKeyOf(Widget);
	if (const FTonalithDisplayConfiguration* Stored =
			GetDefault<UTonalithLevelViewportSettings>()->FindDisplayConfiguration(ViewportIdentifier))
	{
		Configuration = *Stored;
		TrackedViewports.Add({Client, ViewportIdentifier});
		UE_LOG(LogTemp, Warning, TEXT("SetupViewportDisplaySettings"));
	}
	else if (Client->Viewport)
	{
		TrackViewport(Client->Viewport);
		Store(ViewportIdentifier, Configuration);
	}
}

void FTonalithEditorModule::TrackViewport(FViewport* Viewport)
{
	FViewportClient* const ViewportClient = Viewport->GetClient();
	if (IsTracked(ViewportClient))
	{
		return;
	}
	const TArray<FLevelEditorViewportClient*> Clients = GEditor->GetLevelViewportClients();
	FLevelEditorViewportClient* const* AssociatedClient = Clients.FindByKey(ViewportClient);
	check(AssociatedClient && *AssociatedClient);
	const TSharedPtr<SEditorViewport> Widget = (*AssociatedClient)->GetEditorViewportWidget();
	if (Widget.IsValid())
	{
		TrackedViewports.Add({ViewportClient, ConfigKeyOf(Widget)});
	}
}

bool FTonalithEditorModule::IsTracked(const FViewportClient* Client) const
{
	return TrackedViewports.ContainsByPredicate(
		[Client](const FTrackedViewport& Tracked) { return Tracked.Client == Client; });
}
