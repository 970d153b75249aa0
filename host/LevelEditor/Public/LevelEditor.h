// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Modules/ModuleManager.h"

class IAssetViewport;
class SLevelViewport;

/** The level editor's module: the owner of the panes. */
class LEVELEDITOR_API FLevelEditorModule : public IModuleInterface
{
public:
	/** Registers the menus of the panes. */
	void StartupModule() override;

	/** The pane of the current client, else the first pane, else null. */
	virtual TSharedPtr<IAssetViewport> GetFirstActiveViewport() const;

	/** Opens a pane and makes it the current one. */
	TSharedRef<SLevelViewport> OpenPane(FName ConfigKey);

	/**
	 * Opens the panes of a layout such as "FourPanes2x2", then closes those of the layout before. Their keys are
	 * "<layout>.Viewport 1.Viewport<n>".
	 * @return false for an unknown layout
	 */
	bool SetLayout(const FString& Layout);

	/** In the order of their opening. */
	const TArray<TSharedPtr<SLevelViewport>>& GetPanes() const { return Panes; }

	/** Null when no pane has the key. */
	TSharedPtr<SLevelViewport> FindPane(FName ConfigKey) const;

	/** The pane dies with the last reference to it. */
	void ClosePane(SLevelViewport& Pane);

	/** Closes the panes in the order of their opening. */
	void CloseAllPanes();

private:
	TArray<TSharedPtr<SLevelViewport>> Panes;

	/** What the "View" menu shows; it changes nothing else. */
	bool bIsRealtime = true;
};
