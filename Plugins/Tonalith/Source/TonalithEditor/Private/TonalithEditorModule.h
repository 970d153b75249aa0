// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The editor module: wires looks into the editor's worlds, viewports and play sessions. Everything runs on the game
// thread, inside callbacks of the engine.
#pragma once

#include "CoreMinimal.h"
#include "Engine/World.h"
#include "Modules/ModuleInterface.h"
#include "Styling/SlateStyle.h"
#include "UObject/WeakObjectPtr.h"

class FLevelEditorViewportClient;
class FTonalithDisplayManager;
class FViewport;
class FViewportClient;
class IAssetTypeActions;
class UToolMenu;
struct FTonalithDisplayConfiguration;

DECLARE_LOG_CATEGORY_EXTERN(LogTonalithEditor, Log, All);

class FTonalithEditorModule final : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

private:
	// Worlds: the last editor world is watched for changes of its feature level, one world at a time.
	void BindWorldInitialization();
	void UnbindWorldInitialization();
	void ForgetEditorWorld();
	void OnPreWorldInitialization(UWorld* World, const UWorld::InitializationValues Values);
	void OnFeatureLevelChanged(ERHIFeatureLevel::Type FeatureLevel);

	// Looks as assets: their type in the content browser, and their icons.
	void RegisterAssetTypes();
	void UnregisterAssetTypes();
	void InitializeStyle();
	void ReleaseStyle();

	// The editor engine: exists once the engine loop is complete, which never happens in commandlets.
	void BindEngineLoop();
	void UnbindEngineLoop();
	void UnbindEditor();
	void OnEngineLoopInitComplete();

	// Level viewports: each client gets the record stored under its viewport's identifier, and gives it back when it goes.
	void OnLevelViewportClientListChanged();
	void SaveGoneViewports(FTonalithDisplayManager& DisplayManager, const TArray<FLevelEditorViewportClient*>& Clients);
	void SetupViewportDisplaySettings(FLevelEditorViewportClient* Client);

	/** Tracks the viewport's client without storing anything; fatal for one that is not in the editor's level list. */
	void TrackViewport(FViewport* Viewport);
	bool IsTracked(const FViewportClient* Client) const;

	// The viewport's menu: a sub-menu of "View" with the controls for the active viewport's look.
	void RegisterMenus();
	void UnregisterMenus();
	void MakeDisplaySubMenu(UToolMenu* Menu);
	void HandleDisplayConfigurationChanged(const FTonalithDisplayConfiguration& Configuration);

	// Play in editor: a session starts with the look of the viewport that was active when it was launched.
	void OnPreBeginPIE(const bool bIsSimulating);
	void OnPostPIEStarted(const bool bIsSimulating);
	void OnGameViewportClientCreated();

	struct FTrackedViewport
	{
		/** A key: the client may be dead. */
		FViewportClient* Client;

		/** The configuration key of the client's pane. */
		FName ViewportIdentifier;
	};

	TArray<FTrackedViewport> TrackedViewports;

	/** The record of the viewport that was active when play was about to begin; the runtime module owns it. */
	FTonalithDisplayConfiguration* PendingPIEConfiguration = nullptr;

	TArray<TSharedRef<IAssetTypeActions>> RegisteredAssetTypeActions;
	TUniquePtr<FSlateStyleSet> Style;

	FWeakObjectPtr EditorWorld;

	/** Of the handler on EditorWorld. */
	FDelegateHandle FeatureLevelChangedHandle;
};
