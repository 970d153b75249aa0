// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/MenuRow.h"

void SMenuRow::Construct(const FArguments& InArgs)
{
	Row = InArgs;
	if (Row._Kind == EMenuRow::Toggle)
	{
		ChildSlot[SAssignNew(CheckBox, SCheckBox).Action(Row._Action)];
	}
}

bool SMenuRow::IsClickable() const
{
	return Row._Kind == EMenuRow::SubMenu || (Row._Action.ExecuteAction.IsBound() && Row._Action.CanExecute());
}

void SMenuRow::Click()
{
	const TSharedRef<SWidget> Kept = AsShared();
	if (Row._Kind == EMenuRow::SubMenu)
	{
		FSlateApplication::Get().PushMenu(Row._SubMenuName, Kept, Row._MakeSubMenu);
		return;
	}
	if (Row._bClosesMenus)
	{
		FSlateApplication::Get().DismissAllMenus();
	}
	Row._Action.Execute();
}
