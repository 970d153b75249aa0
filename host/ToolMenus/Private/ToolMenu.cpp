// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ToolMenu.h"

#include "ToolMenus.h"

FToolMenuSection& UToolMenu::AddSection(
	const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert)
{
	FToolMenuSection* Section = FindSection(SectionName);
	if (!Section)
	{
		Section = &Sections.Emplace_GetRef();
		Section->Name = SectionName;
		Section->Owner = UToolMenus::Get()->CurrentOwner();
	}
	if (InLabel.IsSet())
	{
		Section->Label = InLabel;
	}
	return *Section;
}

FToolMenuSection* UToolMenu::FindSection(const FName SectionName)
{
	return Sections.FindByPredicate(
		[SectionName](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}

void UToolMenu::Merge(const UToolMenu& Other)
{
	for (const FToolMenuSection& From : Other.Sections)
	{
		FToolMenuSection& To = AddSection(From.Name, From.Label);
		To.Owner = FToolMenuOwner();
		for (const FToolMenuEntry& Entry : From.Blocks)
		{
			To.AddEntry(Entry);
		}
	}
}

bool UToolMenu::RemoveOwnedBy(const FToolMenuOwner& Owner)
{
	bool bRemoved = false;
	for (int32 Place = Sections.Num(); Place-- > 0;)
	{
		FToolMenuSection& Section = Sections[Place];
		for (int32 Index = Section.Blocks.Num(); Index-- > 0;)
		{
			if (Section.Blocks[Index].Owner == Owner)
			{
				Section.Blocks.RemoveAt(Index);
				bRemoved = true;
			}
		}
		if (Section.Blocks.IsEmpty() && Section.Owner == Owner)
		{
			Sections.RemoveAt(Place);
			bRemoved = true;
		}
	}
	return bRemoved;
}
