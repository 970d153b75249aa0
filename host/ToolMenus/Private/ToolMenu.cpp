// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ToolMenu.h"

FToolMenuSection& UToolMenu::AddSection(
	const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert)
{
	FToolMenuSection* Section = FindSection(SectionName);
	if (!Section)
	{
		Section = &Sections.Emplace_GetRef();
		Section->Name = SectionName;
		Section->Owner = FToolMenuOwner::Current();
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
	int32 Removed = 0;
	for (FToolMenuSection& Section : Sections)
	{
		Removed += Section.Blocks.RemoveAll([&Owner](const FToolMenuEntry& Entry) { return Entry.Owner == Owner; });
	}
	Removed += Sections.RemoveAll(
		[&Owner](const FToolMenuSection& Section) { return Section.Blocks.IsEmpty() && Section.Owner == Owner; });
	return Removed > 0;
}
