// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "ToolMenuContext.h"
#include "ToolMenuEntry.h"
#include "ToolMenuMisc.h"

/** A part of a menu. References to its entries are valid until the next one is added. */
struct TOOLMENUS_API FToolMenuSection
{
	/** An entry of the same name is replaced at its place; one without a name is always added. */
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);

	FToolMenuEntry& AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
		const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
		const EUserInterfaceActionType InUserInterfaceActionType = EUserInterfaceActionType::Button);

	FToolMenuEntry& AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick = false,
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		const bool bShouldCloseWindowAfterMenuSelection = true);

	/** Null when there is none of that name. */
	FToolMenuEntry* FindEntry(const FName InName);
	const FToolMenuEntry* FindEntry(const FName InName) const
	{
		return const_cast<FToolMenuSection*>(this)->FindEntry(InName);
	}

	FName Name;
	FToolMenuOwner Owner;
	TArray<FToolMenuEntry> Blocks;
	TAttribute<FText> Label;
};
