// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// How menus are made and what their entries do.
#pragma once

#include "Framework/Commands/UIAction.h"

class UToolMenu;

/** Fills an empty menu. */
DECLARE_DELEGATE_OneParam(FNewToolMenuDelegate, UToolMenu*);

struct FNewToolMenuChoice
{
	FNewToolMenuChoice() = default;
	FNewToolMenuChoice(const FNewToolMenuDelegate& InNewToolMenu) : NewToolMenu(InNewToolMenu) {}

	FNewToolMenuDelegate NewToolMenu;
};

struct FToolUIActionChoice
{
	FToolUIActionChoice() = default;
	FToolUIActionChoice(const FUIAction& InAction) : Action(MakeShared<FUIAction>(InAction)) {}

	/** Null when nothing was chosen. */
	const FUIAction* GetUIAction() const { return Action.Get(); }

private:
	TSharedPtr<const FUIAction> Action;
};
