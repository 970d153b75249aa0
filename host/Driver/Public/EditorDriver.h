// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A user's hands on the editor. Tests and stories act through this and nothing else.
#pragma once

#include "LaunchEngineLoop.h"
#include "MenuDriver.h"
#include "SLevelViewport.h"
#include "WindowDriver.h"

#include <stdexcept>

/** A step that cannot be done as asked, such as closing a pane that is not open. The text is UTF-8. */
class FDriverError : public std::runtime_error
{
public:
	explicit FDriverError(const FString& Reason) : std::runtime_error(TCHAR_TO_UTF8(*Reason)) {}

	/** Throws, with the arguments put into the reason, unless something is true. */
	template <size_t Size, typename... ArgTypes>
	static void Unless(bool bIsTrue, const TCHAR (&Reason)[Size], ArgTypes... Args)
	{
		if (!bIsTrue)
		{
			throw FDriverError(FString::Printf(Reason, Args...));
		}
	}
};

/**
 * One editor session; a process can have one. Everything but the start needs a session that runs; every operation that
 * cannot be done throws FDriverError.
 */
class FEditorDriver
{
public:
	/**
	 * Starts the editor as far as an empty layout. The session's machine-wide folder for application data is "ProgramData"
	 * in the project's folder; what the machine itself has there is never seen.
	 */
	void Start(const FEngineLoopOptions& Options);

	/** Between start and exit. */
	bool IsRunning() const { return bIsRunning; }

	UWorld& MakeWorld(EWorldType::Type Type) { return *UWorld::CreateWorld(Type); }

	/** Destroys the world, as loading another map does. */
	void DestroyWorld(UWorld& World);

	/** Opens a pane under the key that names it within its layout; it becomes the active one. */
	void OpenPane(const FString& Key);

	bool HasPane(const FString& Key) const;

	/** Changes to a layout: OnePane, TwoPanesHoriz or FourPanes2x2. */
	void SetLayout(const FString& Layout);

	void ClosePane(const FString& Key);
	void ActivatePane(const FString& Key) { GCurrentLevelEditingViewportClient = &Pane(Key).GetLevelViewportClient(); }

	/** All panes, in the order of the layout. */
	const TArray<TSharedPtr<SLevelViewport>>& Panes() const;

	/** The pane of that key. */
	SLevelViewport& Pane(const FString& Key) const;

	static TSharedRef<SLevelViewport> ActivePane();

	/** In pixels. */
	void ResizePane(const FString& Key, FIntPoint Size);

	/** The next frame of the active pane, as a user sees it. */
	FPicture TakePicture() { return TakePicture(*ActivePane()); }
	FPicture TakePicture(IAssetViewport& Pane);

	/** Chooses an entry of the content browser's menu for new assets. @param Path such as "/Game/Looks/Night" */
	UObject& CreateAsset(const FString& Label, const FString& Path);

	/** Selects assets in the content browser and opens them. @param Paths such as "/Game/Looks/Night.Night" */
	void OpenAssets(const TArray<FString>& Paths);

	/** Imports files in the content browser. @return the assets; null for a file that became none */
	TArray<UObject*> ImportFiles(const TArray<FString>& Files, const FString& Folder);

	/** "Reimport" in the menu of an asset. @return false when it failed, or the asset came from no file */
	bool Reimport(const FString& Path);

	/** "Asset Actions > Export", as the file's extension tells. */
	void Export(const FString& Path, const FString& File);

	/** Takes the last transaction back. */
	void Undo();

	/** Plays in the active pane. */
	void PlayInPane();

	/** Plays in a window of its own, unless something stops the session. */
	void PlayInWindow(EPlayCancellation Cancellation = EPlayCancellation::None);

	void EndPlay();

	/** The menus, a frame after whatever was done before. */
	const FMenuDriver& Menus();

	/** The windows of plug-ins, likewise. */
	const FWindowDriver& Windows();

	/** Shuts a module down in the middle of the session. */
	void UnloadModule(const FString& Name);

	/** A normal exit; the question whether to save what was changed is answered with yes. */
	void Quit();

private:
	/** The asset of that path, loaded. */
	UObject& Asset(const FString& Path) const;

	FEngineLoop Loop;
	FMenuDriver MenuDriver;
	FWindowDriver WindowDriver;
	bool bIsRunning = false;
};
