// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look's menu of a level viewport: found where the toolbar shows it, built, and switched.
#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"
#include "ToolMenus.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/SWidget.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace
{
/** Of the viewport toolbar's menu; null when there is none. */
const FToolMenuEntry* FindLookMenuEntry()
{
	UToolMenu* const ViewMenu = UToolMenus::Get()->FindMenu("LevelEditor.LevelViewportToolBar.View");
	const FToolMenuSection* const Section = ViewMenu ? ViewMenu->FindSection("ColorManagement") : nullptr;
	return Section ? Section->FindEntry("TNLDisplaySubMenu") : nullptr;
}

/** The first check box in a tree of widgets. */
TSharedPtr<SCheckBox> FindCheckBox(const TSharedRef<SWidget>& Widget)
{
	if (Widget->GetType() == FName("SCheckBox"))
	{
		return StaticCastSharedRef<SCheckBox>(Widget);
	}
	FChildren* const Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		const TSharedPtr<SCheckBox> Found = FindCheckBox(Children->GetChildAt(Index));
		if (Found.IsValid())
		{
			return Found;
		}
	}
	return nullptr;
}

/** What the sub-menu shows when it opens: the look's widget lives as long as the menu. */
struct FTonalithOpenMenu
{
	FTonalithOpenMenu()
		: Menu(UToolMenus::Get()->RegisterMenu("TonalithTests.LookMenu", NAME_None, EMultiBoxType::Menu, false))
	{
		if (const FToolMenuEntry* const Entry = FindLookMenuEntry())
		{
			Entry->SubMenuData.ConstructMenu.NewToolMenu.ExecuteIfBound(Menu);
			Content = UToolMenus::Get()->GenerateWidget("TonalithWidget.DisplayConfiguration", FToolMenuContext());
			Switch = FindCheckBox(Content.ToSharedRef());
		}
	}

	UToolMenu* Menu;
	TSharedPtr<SWidget> Content;
	TSharedPtr<SCheckBox> Switch;
};
} // namespace

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FTonalithMenuTest, "Tonalith.Menu.HasItsEntries",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FTonalithMenuTest::RunTest(const FString&)
{
	const FToolMenuEntry* const Entry = FindLookMenuEntry();
	if (!TestNotNull(TEXT("the sub-menu in the toolbar's menu"), Entry))
	{
		return false;
	}
	TestTrue(TEXT("it is a sub-menu"), Entry->IsSubMenu());
	TestFalse(TEXT("its label is empty"), Entry->Label.Get().IsEmpty());
	const FTonalithOpenMenu Open;
	const FToolMenuSection* const Section = Open.Menu->FindSection("DisplayConfiguration");
	if (TestNotNull(TEXT("the section of the opened menu"), Section))
	{
		TestNotNull(TEXT("the widget in it"), Section->FindEntry("TonalithConfigurationWidget"));
	}
	UToolMenu* const WidgetMenu = UToolMenus::Get()->FindMenu("TonalithWidget.DisplayConfiguration");
	if (TestNotNull(TEXT("the widget's own menu"), WidgetMenu))
	{
		const FToolMenuSection* const Entries = WidgetMenu->FindSection("DisplayConfiguration");
		TestTrue(TEXT("the switch"), Entries && Entries->FindEntry("EnableDisplay"));
		TestTrue(TEXT("the selection"), Entries && Entries->FindEntry("TNLAssetSelection"));
	}
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FTonalithSwitchTest, "Tonalith.Menu.TheSwitchIsRemembered",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FTonalithSwitchTest::RunTest(const FString&)
{
	const FTonalithOpenMenu First;
	if (!TestTrue(TEXT("the switch is there"), First.Switch.IsValid()))
	{
		return false;
	}
	const bool bWasOn = First.Switch->IsChecked();
	First.Switch->ToggleCheckedState();
	TestTrue(TEXT("it changes"), First.Switch->IsChecked() != bWasOn);

	// The next menu is built from the viewport's record.
	const FTonalithOpenMenu Second;
	if (TestTrue(TEXT("the switch is there again"), Second.Switch.IsValid()))
	{
		TestTrue(TEXT("the viewport remembers"), Second.Switch->IsChecked() != bWasOn);
		Second.Switch->ToggleCheckedState();
		TestTrue(TEXT("it changes back"), Second.Switch->IsChecked() == bWasOn);
	}
	return true;
}

#endif
