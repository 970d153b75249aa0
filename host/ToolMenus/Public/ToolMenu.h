// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Framework/MultiBox/MultiBoxDefs.h"
#include "ToolMenuSection.h"
#include "UObject/Object.h"

/** A menu: one that is registered by name, one under construction, or the copy that an open menu shows. */
class TOOLMENUS_API UToolMenu : public UObject
{
public:
	/**
	 * The section of that name, its label replaced when one is given, even an empty one; else a new section of the
	 * current owner. The reference is valid until the next section is added.
	 */
	FToolMenuSection& AddSection(const FName SectionName, const TAttribute<FText>& InLabel = TAttribute<FText>(),
		const FToolMenuInsert InPosition = FToolMenuInsert());

	/** Null when there is none of that name. */
	FToolMenuSection* FindSection(const FName SectionName);

	/** False for a menu that was only extended. */
	bool IsRegistered() const { return bRegistered; }

	FName MenuName;

	/** The menu whose sections come first. */
	FName MenuParent;

	/** Whether clicking an entry closes all menus. */
	bool bShouldCloseWindowAfterMenuSelection = true;
	TArray<FToolMenuSection> Sections;

private:
	friend class UToolMenus;

	/** Adds the sections and entries of another menu; of its sections' owners nothing is kept. */
	void Merge(const UToolMenu& Other);

	/** Removes the owner's entries, and its sections that are empty then. @return whether there were any */
	bool RemoveOwnedBy(const FToolMenuOwner& Owner);

	bool bRegistered = false;
};
