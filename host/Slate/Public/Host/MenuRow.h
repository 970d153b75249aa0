// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A row of a menu, with what a user can see of it and do with it.
#pragma once

#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/UIAction.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/SCompoundWidget.h"

enum class EMenuRow : uint8
{
	/** Only text. */
	Heading,
	Button,

	/** A button behind a check box. */
	Toggle,
	SubMenu,

	/** An asset to choose. */
	Asset
};

class SMenuRow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuRow) : _Kind(EMenuRow::Button), _bClosesMenus(false) {}
	SLATE_ARGUMENT(EMenuRow, Kind)
	SLATE_ARGUMENT(FName, Name)
	SLATE_ARGUMENT(TAttribute<FText>, Label)
	SLATE_ARGUMENT(FUIAction, Action)

	/** Whether a click closes all menus before the action runs. */
	SLATE_ARGUMENT(bool, bClosesMenus)

	/** Makes what a sub-menu opens, and the name that it opens under. */
	SLATE_ARGUMENT(FMakeMenuContent, MakeSubMenu)
	SLATE_ARGUMENT(FName, SubMenuName)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		Row = InArgs;
		if (Row._Kind == EMenuRow::Toggle)
		{
			ChildSlot[SAssignNew(CheckBox, SCheckBox).Action(Row._Action)];
		}
	}

	EMenuRow GetKind() const { return Row._Kind; }

	/** Of the entry or the asset. */
	FName GetName() const { return Row._Name; }

	FText GetLabel() const { return Row._Label.Get(); }

	bool IsChecked() const { return Row._Action.IsChecked(); }

	/** Whether a click would do something. */
	bool IsClickable() const
	{
		return Row._Kind == EMenuRow::SubMenu || (Row._Action.ExecuteAction.IsBound() && Row._Action.CanExecute());
	}

	/** The row may be gone afterwards. */
	void Click()
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

	/** Leaves the menus open. */
	void ClickCheckBox() { CheckBox->ToggleCheckedState(); }

private:
	FArguments Row;

	/** Of a toggle. */
	TSharedPtr<SCheckBox> CheckBox;
};
