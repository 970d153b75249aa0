// Copyright 2026 Vantor. SPDX-License-Identifier: MIT

#include "ToolMenus.h"

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>&, const FToolUIActionChoice& InAction,
	const EUserInterfaceActionType InUserInterfaceActionType)
{
	FToolMenuEntry Entry;
	Entry.Name = InName;
	Entry.Owner = UToolMenus::Get()->CurrentOwner();
	Entry.Label = InLabel;
	Entry.ToolTip = InToolTip;
	Entry.Action = InAction;
	Entry.UserInterfaceActionType = InUserInterfaceActionType;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitSubMenu(const FName InName, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu, const FToolUIActionChoice& InAction,
	const EUserInterfaceActionType InUserInterfaceActionType, bool bInOpenSubMenuOnClick,
	const TAttribute<FSlateIcon>& InIcon, const bool bShouldCloseWindowAfterMenuSelection)
{
	FToolMenuEntry Entry = InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, InUserInterfaceActionType);
	Entry.SubMenuData = {true, bInOpenSubMenuOnClick, InMakeMenu};
	Entry.bShouldCloseWindowAfterMenuSelection = bShouldCloseWindowAfterMenuSelection;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitWidget(const FName InName, const TSharedRef<SWidget>& InWidget, const FText& Label,
	bool bNoIndent, bool bSearchable, bool bNoPadding, const FText& InToolTipText)
{
	FToolMenuEntry Entry = InitMenuEntry(InName, Label, InToolTipText, FSlateIcon(), FToolUIActionChoice());
	Entry.Widget = InWidget;
	Entry.WidgetData = {bNoIndent, bSearchable, bNoPadding};
	return Entry;
}
