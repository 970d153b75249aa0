// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ToolMenuSection.h"

#include "Host/Trace.h"

FToolMenuEntry& FToolMenuSection::AddEntry(const FToolMenuEntry& Args)
{
	if (FToolMenuEntry* Existing = FindEntry(Args.Name); Existing && !Args.Name.IsNone())
	{
		return *Existing = Args;
	}
	return Blocks.Emplace_GetRef(Args);
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
	const EUserInterfaceActionType InUserInterfaceActionType)
{
	return AddEntry(
		FToolMenuEntry::InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, InUserInterfaceActionType));
}

FToolMenuEntry& FToolMenuSection::AddSubMenu(const FName InName, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick,
	const TAttribute<FSlateIcon>& InIcon, const bool bShouldCloseWindowAfterMenuSelection)
{
	HostTrace::Line(TEXT("add sub-menu %s"), *InName.ToString());
	return AddEntry(FToolMenuEntry::InitSubMenu(InName, InLabel, InToolTip, InMakeMenu, FToolUIActionChoice(),
		EUserInterfaceActionType::Button, bInOpenSubMenuOnClick, InIcon, bShouldCloseWindowAfterMenuSelection));
}

FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName)
{
	return Blocks.FindByPredicate([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
}
