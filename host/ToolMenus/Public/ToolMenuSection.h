// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "ToolMenuContext.h"
#include "ToolMenuEntry.h"
#include "ToolMenuMisc.h"

/** A part of a menu. References to its entries are valid until the next one is added. */
struct FToolMenuSection
{
	/** An entry of the same name is replaced at its place; one without a name is always added. */
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args)
	{
		FToolMenuEntry* const Existing = Blocks.FindByPredicate(
			[&Args](const FToolMenuEntry& Entry) { return Entry.Name == Args.Name && !Args.Name.IsNone(); });
		return Existing ? *Existing = Args : Blocks.Emplace_GetRef(Args);
	}

	FToolMenuEntry& AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
		const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
		const EUserInterfaceActionType InUserInterfaceActionType = EUserInterfaceActionType::Button)
	{
		return AddEntry(
			FToolMenuEntry::InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, InUserInterfaceActionType));
	}

	FToolMenuEntry& AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick = false,
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		const bool bShouldCloseWindowAfterMenuSelection = true)
	{
		HostTrace::Line(TEXT("add sub-menu %s"), *InName.ToString());
		return AddEntry(FToolMenuEntry::InitSubMenu(InName, InLabel, InToolTip, InMakeMenu, FToolUIActionChoice(),
			EUserInterfaceActionType::Button, bInOpenSubMenuOnClick, InIcon, bShouldCloseWindowAfterMenuSelection));
	}

	/** Null when there is none of that name. */
	const FToolMenuEntry* FindEntry(const FName InName) const
	{
		return Blocks.FindByPredicate([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
	}

	FName Name;
	FToolMenuOwner Owner;
	TArray<FToolMenuEntry> Blocks;
	TAttribute<FText> Label;
};
