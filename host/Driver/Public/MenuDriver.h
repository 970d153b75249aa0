// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A user's hands on the menus. All is read from and clicked on the widgets that the open menus show.
#pragma once

#include "CoreMinimal.h"

/** Throws FDriverError for what is not there; the error names what is. Rows are found innermost menu first. */
class FMenuDriver
{
public:
	/** Opens the "View" menu of the active pane; other menus close. */
	void OpenViewMenu() const;

	void OpenSubMenu(const FString& Entry) const;

	/** Clicks an entry, or an asset in a picker; "Clear" is an entry of pickers. */
	void Click(const FString& Name) const;

	/** Clicks the check box of a toggle. */
	void ClickCheckBox(const FString& Entry) const;

	/** Clicks beside the menus. */
	void CloseAll() const;

	/**
	 * What the open menus show, one line a row: the labels of sections, and two blanks deeper their entries, toggles with
	 * "[x]" or "[ ]" in front, sub-menus with " >" behind. What an entry opened follows it, two blanks deeper. Empty when
	 * no menu is open.
	 */
	FString Text() const;
};
