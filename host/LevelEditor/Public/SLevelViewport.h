// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A pane of the level editor.
#pragma once

#include "AssetEditorViewportLayout.h"
#include "IAssetViewport.h"
#include "LevelEditorViewport.h"
#include "Slate/SceneViewport.h"

class LEVELEDITOR_API SLevelViewport
	: public SEditorViewport
	, public IAssetViewport
{
public:
	void Construct(const FAssetEditorViewportConstructionArgs& InConstructionArgs);

	/** The name of the menu "View" of every pane's toolbar. */
	static constexpr const TCHAR* ViewMenuName = TEXT("LevelEditor.LevelViewportToolBar.View");

	/** Opens that menu. */
	void OpenViewMenu();

	FName GetConfigKey() const { return ConfigKey; }

	FLevelEditorViewportClient& GetLevelViewportClient() const
	{
		return static_cast<FLevelEditorViewportClient&>(*Client);
	}

	FViewport* GetActiveViewport() override
	{
		return PlayViewport.IsValid() ? PlayViewport.Get() : SceneViewport.Get();
	}
	void StartPlayInEditorSession(const TSharedPtr<FSceneViewport>& InPlayViewport) override
	{
		PlayViewport = InPlayViewport;
	}
	void EndPlayInEditorSession() override { PlayViewport.Reset(); }

private:
	FName ConfigKey;
	TSharedPtr<FSceneViewport> PlayViewport;
};
