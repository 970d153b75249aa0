// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Framework/Commands/UICommandInfo.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuOwner.h"
#include "Widgets/SWidget.h"

/** What an entry that opens a menu has. */
struct FToolMenuEntrySubMenuData
{
	bool bIsSubMenu = false;

	/** Kept, but without effect in the host: every sub-menu opens by a click. */
	bool bOpenSubMenuOnClick = false;
	FNewToolMenuChoice ConstructMenu;
};

/** What an entry that is a widget has; kept, but without effect in the host. */
struct FToolMenuEntryWidgetData
{
	bool bNoIndent = false;
	bool bSearchable = true;
	bool bNoPadding = false;
};

/** An entry of a menu. Its owner is the one at the time of its making. */
struct FToolMenuEntry
{
	static FToolMenuEntry InitMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
		const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>&, const FToolUIActionChoice& InAction,
		const EUserInterfaceActionType InUserInterfaceActionType = EUserInterfaceActionType::Button)
	{
		FToolMenuEntry Entry;
		Entry.Name = InName;
		Entry.Label = InLabel;
		Entry.ToolTip = InToolTip;
		Entry.Action = InAction;
		Entry.UserInterfaceActionType = InUserInterfaceActionType;
		return Entry;
	}

	static FToolMenuEntry InitSubMenu(const FName InName, const TAttribute<FText>& InLabel,
		const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu, const FToolUIActionChoice& InAction,
		const EUserInterfaceActionType InUserInterfaceActionType, bool bInOpenSubMenuOnClick = false,
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		const bool bShouldCloseWindowAfterMenuSelection = true)
	{
		FToolMenuEntry Entry = InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, InUserInterfaceActionType);
		Entry.SubMenuData = {true, bInOpenSubMenuOnClick, InMakeMenu};
		Entry.bShouldCloseWindowAfterMenuSelection = bShouldCloseWindowAfterMenuSelection;
		return Entry;
	}

	/** Keeps the widget alive. */
	static FToolMenuEntry InitWidget(const FName InName, const TSharedRef<SWidget>& InWidget, const FText& Label,
		bool bNoIndent = false, bool bSearchable = true, bool bNoPadding = false, const FText& InToolTipText = FText())
	{
		FToolMenuEntry Entry = InitMenuEntry(InName, Label, InToolTipText, FSlateIcon(), FToolUIActionChoice());
		Entry.Widget = InWidget;
		Entry.WidgetData = {bNoIndent, bSearchable, bNoPadding};
		return Entry;
	}

	bool IsSubMenu() const { return SubMenuData.bIsSubMenu; }

	FName Name;
	FToolMenuOwner Owner = FToolMenuOwner::Current();

	EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button;

	/** Of a sub-menu: whether clicking one of its entries closes all menus. */
	bool bShouldCloseWindowAfterMenuSelection = true;
	FToolMenuEntrySubMenuData SubMenuData;
	FToolMenuEntryWidgetData WidgetData;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	FToolUIActionChoice Action;

	/** Of an entry that is a widget. */
	TSharedPtr<SWidget> Widget;
};
