// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The editor as an object: its lists of viewport clients and its play sessions.
#pragma once

#include "Engine/Engine.h"
#include "Engine/World.h"
#include "Host/Transactions.h"
#include "PlayInEditorDataTypes.h"

class FEditorViewportClient;
class FLevelEditorViewportClient;
class FSceneViewport;

DECLARE_EVENT(UEditorEngine, FViewportClientListChangedEvent);

class UEditorEngine : public UEngine
{
public:
	const TArray<FEditorViewportClient*>& GetAllViewportClients() const { return AllViewportClients; }

	const TArray<FLevelEditorViewportClient*>& GetLevelViewportClients() const { return LevelViewportClients; }

	/** The list changes first, then the event is sent; so with the three below. */
	void AddViewportClients(FEditorViewportClient* ViewportClient)
	{
		AllViewportClients.Add(ViewportClient);
		ViewportClientListChangedEvent.Broadcast();
	}
	void RemoveViewportClients(FEditorViewportClient* ViewportClient)
	{
		AllViewportClients.Remove(ViewportClient);
		ViewportClientListChangedEvent.Broadcast();
	}
	void AddLevelViewportClients(FLevelEditorViewportClient* ViewportClient)
	{
		LevelViewportClients.Add(ViewportClient);
		LevelViewportClientListChangedEvent.Broadcast();
	}
	void RemoveLevelViewportClients(FLevelEditorViewportClient* ViewportClient)
	{
		LevelViewportClients.Remove(ViewportClient);
		LevelViewportClientListChangedEvent.Broadcast();
	}

	FViewportClientListChangedEvent& OnViewportClientListChanged() { return ViewportClientListChangedEvent; }

	FViewportClientListChangedEvent& OnLevelViewportClientListChanged() { return LevelViewportClientListChangedEvent; }

	/** For the level editor: the pane of the current client, else the first one, else null. */
	UNREALED_API TSharedPtr<IAssetViewport> GetActivePane() const;

	/** The viewport of that pane, or null. The play viewport while the pane plays. */
	UNREALED_API FViewport* GetActiveViewport();

	/** The viewport that is played in, or null. */
	FViewport* GetPIEViewport() { return GameViewport ? GameViewport->Viewport : nullptr; }

	/** Every viewport of the editor is drawn anew in the next tick. */
	void RedrawAllViewports(bool = true) { bRedrawRequested = true; }

	/** Takes the last transaction back. @return false when there is none */
	bool UndoTransaction(bool = true) { return HostTransactions::Undo(); }

	template <class SubsystemType>
	SubsystemType* GetEditorSubsystem() const
	{
		static SubsystemType Subsystem;
		return &Subsystem;
	}

	/** Asks for a session; it begins at the next tick. */
	void RequestPlaySession(const FRequestPlaySessionParams& InParams)
	{
		PlaySessionRequest = MakeUnique<FRequestPlaySessionParams>(InParams);
	}

	/** Ends the session at the next tick. */
	void RequestEndPlayMap() { bEndPlayRequested = true; }

	UNREALED_API void Tick();

	/** Ends the session at once; nothing without one. */
	UNREALED_API void EndPlayMap();

	/** Stops the next session; falls back to None afterwards. */
	EPlayCancellation NextPlayCancellation = EPlayCancellation::None;

private:
	void TickPlaySession();
	void StartPlaySession(const FRequestPlaySessionParams& Params);
	void CreatePlayViewport(const FRequestPlaySessionParams& Params);

	TArray<FEditorViewportClient*> AllViewportClients;
	TArray<FLevelEditorViewportClient*> LevelViewportClients;
	FViewportClientListChangedEvent ViewportClientListChangedEvent{TEXT("UEditorEngine::OnViewportClientListChanged")};
	FViewportClientListChangedEvent LevelViewportClientListChangedEvent{
		TEXT("UEditorEngine::OnLevelViewportClientListChanged")};
	TUniquePtr<FRequestPlaySessionParams> PlaySessionRequest;
	bool bEndPlayRequested = false;
	bool bRedrawRequested = false;
	UWorld* PlayWorld = nullptr;
	TSharedPtr<FSceneViewport> PlayViewport;
	TWeakPtr<IAssetViewport> PlayPane;
};
