// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Play sessions: the engine's order of events.
#include "Editor.h"
#include "IAssetViewport.h"
#include "Slate/SceneViewport.h"

FEditorDelegates::FOnPIEEvent FEditorDelegates::StartPIE{TEXT("FEditorDelegates::StartPIE")};
FEditorDelegates::FOnPIEEvent FEditorDelegates::PreBeginPIE{TEXT("FEditorDelegates::PreBeginPIE")};
FEditorDelegates::FOnPIEEvent FEditorDelegates::BeginPIE{TEXT("FEditorDelegates::BeginPIE")};
FEditorDelegates::FOnPIEEvent FEditorDelegates::PostPIEStarted{TEXT("FEditorDelegates::PostPIEStarted")};
FEditorDelegates::FOnPIEEvent FEditorDelegates::PrePIEEnded{TEXT("FEditorDelegates::PrePIEEnded")};
FEditorDelegates::FOnPIEEvent FEditorDelegates::EndPIE{TEXT("FEditorDelegates::EndPIE")};
FEditorDelegates::FOnPIEEvent FEditorDelegates::ShutdownPIE{TEXT("FEditorDelegates::ShutdownPIE")};
FSimpleMulticastDelegate FEditorDelegates::CancelPIE{TEXT("FEditorDelegates::CancelPIE")};

/** Sessions that only simulate are not offered. */
static constexpr bool bIsSimulating = false;

void UEditorEngine::TickPlaySession()
{
	if (bEndPlayRequested)
	{
		bEndPlayRequested = false;
		EndPlayMap();
	}
	if (const TUniquePtr<FRequestPlaySessionParams> Request = MoveTemp(PlaySessionRequest); Request.IsValid())
	{
		EndPlayMap();
		StartPlaySession(*Request);
	}
}

void UEditorEngine::StartPlaySession(const FRequestPlaySessionParams& Params)
{
	const EPlayCancellation Cancellation = std::exchange(NextPlayCancellation, EPlayCancellation::None);
	if (Cancellation == EPlayCancellation::MapSaveRefused)
	{
		FEditorDelegates::CancelPIE.Broadcast();
		return;
	}
	FEditorDelegates::StartPIE.Broadcast(bIsSimulating);
	FEditorDelegates::PreBeginPIE.Broadcast(bIsSimulating);
	if (Cancellation == EPlayCancellation::NotAuthorized)
	{
		FEditorDelegates::CancelPIE.Broadcast();
		return;
	}
	FEditorDelegates::BeginPIE.Broadcast(bIsSimulating);
	if (Cancellation == EPlayCancellation::ErrorPrompt)
	{
		FEditorDelegates::EndPIE.Broadcast(bIsSimulating);
		FEditorDelegates::CancelPIE.Broadcast();
		return;
	}
	PlayWorld = UWorld::CreateWorld(EWorldType::PIE);
	CreatePlayViewport(Params);
	FEditorDelegates::PostPIEStarted.Broadcast(bIsSimulating);
}

void UEditorEngine::CreatePlayViewport(const FRequestPlaySessionParams& Params)
{
	GameViewport = new UGameViewportClient();
	WorldList.push_back({GameViewport});
	PlayViewport = MakeShared<FSceneViewport>(GameViewport);
	GameViewport->SetViewport(PlayViewport.Get());
	PlayPane = Params.DestinationSlateViewport;
	if (const TSharedPtr<IAssetViewport> Pane = PlayPane.Pin())
	{
		Pane->StartPlayInEditorSession(PlayViewport);
	}
	UGameViewportClient::OnViewportCreated().Broadcast();
}

void UEditorEngine::EndPlayMap()
{
	if (!PlayWorld)
	{
		return;
	}
	FEditorDelegates::PrePIEEnded.Broadcast(bIsSimulating);
	if (const TSharedPtr<IAssetViewport> Pane = PlayPane.Pin())
	{
		Pane->EndPlayInEditorSession();
	}
	FEditorDelegates::EndPIE.Broadcast(bIsSimulating);
	WorldList.pop_back();
	GameViewport->MarkAsGarbage();
	GameViewport = nullptr;
	PlayViewport.Reset();
	PlayWorld->MarkAsGarbage();
	PlayWorld = nullptr;
	CollectGarbage();
	FEditorDelegates::ShutdownPIE.Broadcast(bIsSimulating);
}
