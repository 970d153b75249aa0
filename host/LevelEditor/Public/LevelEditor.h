// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Modules/ModuleManager.h"

class IAssetViewport;
class SLevelViewport;

/** The level editor's module: the owner of the panes. */
class LEVELEDITOR_API FLevelEditorModule : public IModuleInterface
{
public:
	/** The pane of the current client, else the first pane, else null. */
	virtual TSharedPtr<IAssetViewport> GetFirstActiveViewport() const;

	/** Opens a pane and makes it the current one. */
	TSharedRef<SLevelViewport> OpenPane(FName ConfigKey);

	/** Null when no pane has the key. */
	TSharedPtr<SLevelViewport> FindPane(FName ConfigKey) const;

	/** The pane dies with the last reference to it. */
	void ClosePane(TSharedRef<SLevelViewport> Pane);

	/** Closes the panes in the order of their opening. */
	void CloseAllPanes();

private:
	TArray<TSharedPtr<SLevelViewport>> Panes;
};
