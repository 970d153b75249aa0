// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/SWindow.h"

DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FMakeMenuContent);

/** A menu that is open: the first one hangs below a widget of a window, each other below a row of the one before. */
struct FOpenMenu
{
	FName Name;
	TWeakPtr<SWidget> Parent;
	TSharedRef<SWidget> Content;
};

/** The user interface as a whole. There is none in commandlets. Game thread. */
class FSlateApplication
{
public:
	SLATE_API static void Create();

	/** Closes the menus, then the windows. */
	SLATE_API static void Shutdown();
	SLATE_API static bool IsInitialized();

	/** Fatal when there is none, or on another thread. */
	SLATE_API static FSlateApplication& Get();

	/** A frame of the windows. */
	SLATE_API void Tick();

	SLATE_API TSharedRef<SWindow> AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately = true);

	/** The window dies with the last reference to it. Nothing for a window that is closed already. */
	SLATE_API void RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy);

	/** In the order of their opening. */
	const TArray<TSharedRef<SWindow>> GetTopLevelWindows() const { return Windows; }

	/**
	 * Opens a menu below a widget. Of the other menus only the one that the widget is in stays, and what that was opened
	 * from; the rest closes before the content is made.
	 */
	SLATE_API void PushMenu(FName Name, const TSharedRef<SWidget>& Parent, const FMakeMenuContent& MakeContent);

	void DismissAllMenus() { DismissDownTo(0); }

	/**
	 * Closes the innermost menu that the widget is in, the menus opened from it first; those that it was opened from
	 * stay. Nothing when the widget is in no menu. The widget may die by this.
	 */
	SLATE_API void DismissMenuByWidget(const TSharedRef<SWidget>& InWidgetInMenu);

	/** Closes the menus that were opened from the innermost one that the widget is in. Nothing when it is in none. */
	SLATE_API void DismissMenusBelow(const SWidget& Widget);

	/** From the outermost to the innermost. */
	const TArray<FOpenMenu>& GetOpenMenus() const { return OpenMenus; }

private:
	/** How many menus are open as far as the innermost one that the widget is in; 0 when it is in none. */
	int32 DepthOf(const SWidget& Widget) const;
	SLATE_API void DismissDownTo(int32 Count);

	TArray<FOpenMenu> OpenMenus;
	TArray<TSharedRef<SWindow>> Windows;
};
