// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SGeneratedMenu.h"

#include "Host/MenuRow.h"
#include "Widgets/SBoxPanel.h"

namespace
{
EMenuRow KindOf(const FToolMenuEntry& Entry)
{
	const bool bIsToggle = Entry.UserInterfaceActionType == EUserInterfaceActionType::ToggleButton;
	return Entry.IsSubMenu() ? EMenuRow::SubMenu : bIsToggle ? EMenuRow::Toggle : EMenuRow::Button;
}

TSharedRef<SWidget> MakeHeading(const TAttribute<FText>& Label)
{
	return SNew(SMenuRow).Kind(EMenuRow::Heading).Label(Label);
}
} // namespace

TSharedRef<SWidget> SGeneratedMenu::MakeRow(const UToolMenu& Menu, const FToolMenuEntry& Entry)
{
	const FUIAction* Action = Entry.Action.GetUIAction();
	const FName SubMenuName(Menu.MenuName.ToString() + TEXT(".") + Entry.Name.ToString());
	return SNew(SMenuRow)
		.Kind(KindOf(Entry))
		.Name(Entry.Name)
		.Label(Entry.Label)
		.Action(Action ? *Action : FUIAction())
		.bClosesMenus(Menu.bShouldCloseWindowAfterMenuSelection)
		.MakeSubMenu(FMakeMenuContent::CreateStatic(&UToolMenus::GenerateSubMenu, SubMenuName, Entry))
		.SubMenuName(SubMenuName);
}

void SGeneratedMenu::Show(const UToolMenu& Menu)
{
	Release();
	Shown = &Menu;
	MenuName = Menu.MenuName;
	SVerticalBox::FArguments Rows;
	for (const FToolMenuSection& Section : Menu.Sections)
	{
		if (Section.Blocks.IsEmpty())
		{
			continue;
		}
		Rows + SVerticalBox::Slot()[MakeHeading(Section.Label)];
		for (const FToolMenuEntry& Entry : Section.Blocks)
		{
			if (!Entry.Widget.IsValid())
			{
				Rows + SVerticalBox::Slot()[MakeRow(Menu, Entry)];
				continue;
			}
			Rows + SVerticalBox::Slot()[MakeHeading(Entry.Label)] + SVerticalBox::Slot()[Entry.Widget.ToSharedRef()];
		}
	}
	ChildSlot[TSlateDecl<SVerticalBox>() <<= Rows];
}

void SGeneratedMenu::Release()
{
	if (UObject* Menu = Shown.Get())
	{
		Menu->MarkAsGarbage();
	}
}
