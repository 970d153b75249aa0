// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "EditorDriver.h"
#include "Host/MenuRow.h"

namespace
{
/** From the top of a menu to its bottom. */
TArray<TSharedRef<SMenuRow>> RowsOf(SWidget& Menu)
{
	TArray<TSharedRef<SMenuRow>> Rows;
	Menu.ForEachWidget(
		[&Rows](SWidget& Widget)
		{
			if (dynamic_cast<SMenuRow*>(&Widget))
			{
				Rows.Add(StaticCastSharedRef<SMenuRow>(Widget.AsShared()));
			}
		});
	return Rows;
}

FString LineOf(const SMenuRow& Row)
{
	const FString Label = Row.GetLabel().ToString();
	const FString Box = Row.IsChecked() ? TEXT("[x] ") : TEXT("[ ] ");
	const EMenuRow Kind = Row.GetKind();
	return (Kind == EMenuRow::Heading ? FString() : TEXT("  ") + (Kind == EMenuRow::Toggle ? Box : FString())) + Label +
		   (Kind == EMenuRow::SubMenu ? TEXT(" >") : TEXT(""));
}

/** The menu at that place of the open ones, and what was opened from it. */
FString TextOf(int32 Index, const FString& Indent)
{
	const TArray<FOpenMenu>& Menus = FSlateApplication::Get().GetOpenMenus();
	const TSharedPtr<SWidget> Opener = Menus.IsValidIndex(Index + 1) ? Menus[Index + 1].Parent.Pin() : nullptr;
	FString Text;
	for (const TSharedRef<SMenuRow>& Row : RowsOf(*Menus[Index].Content))
	{
		if (const FString Line = LineOf(*Row); !Line.IsEmpty())
		{
			Text += Indent + Line + TEXT("\n");
		}
		if (Opener.Get() == &*Row)
		{
			Text += TextOf(Index + 1, Indent + TEXT("    "));
		}
	}
	return Text;
}
/** The first row of that kind and name that would do something when clicked. */
TSharedRef<SMenuRow> FindRow(const FString& Name, const TCHAR* What, const TArray<EMenuRow>& Kinds)
{
	const TArray<FOpenMenu>& Menus = FSlateApplication::Get().GetOpenMenus();
	FString Others;
	for (int32 Index = Menus.Num(); Index-- > 0;)
	{
		for (const TSharedRef<SMenuRow>& Row : RowsOf(*Menus[Index].Content))
		{
			const bool bFits = Kinds.Contains(Row->GetKind()) && Row->IsClickable();
			if (bFits && Row->GetName() == FName(Name))
			{
				return Row;
			}
			Others += bFits ? TEXT(" ") + Row->GetName().ToString() : FString();
		}
	}
	throw FDriverError(
		FString::Printf(TEXT("no %s \"%s\" can be clicked in the open menus, only:%s"), What, *Name, *Others));
}
} // namespace

void FMenuDriver::OpenViewMenu() const
{
	FEditorDriver::ActivePane()->OpenViewMenu();
}

void FMenuDriver::OpenSubMenu(const FString& Entry) const
{
	FindRow(Entry, TEXT("sub-menu"), {EMenuRow::SubMenu})->Click();
}

void FMenuDriver::Click(const FString& Name) const
{
	FindRow(Name, TEXT("entry"), {EMenuRow::Button, EMenuRow::Toggle, EMenuRow::Asset})->Click();
}

void FMenuDriver::ClickCheckBox(const FString& Entry) const
{
	FindRow(Entry, TEXT("check box"), {EMenuRow::Toggle})->ClickCheckBox();
}

void FMenuDriver::CloseAll() const
{
	FSlateApplication::Get().DismissAllMenus();
}

FString FMenuDriver::Text() const
{
	return FSlateApplication::Get().GetOpenMenus().IsEmpty() ? FString() : TextOf(0, FString());
}
