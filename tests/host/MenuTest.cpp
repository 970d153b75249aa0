// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The registry of menus, and how menus open and close. What is in them is the plug-ins' matter.
#include "EditorTest.h"
#include "SLevelViewport.h"
#include "ToolMenus.h"

using testing::ElementsAre;
using testing::HasSubstr;

class Menus : public FEditorTest
{
protected:
	void OpenView()
	{
		Driver.Start(Options);
		Driver.OpenPane(TEXT("A"));
		Driver.Menus().OpenViewMenu();
	}

	std::string Text() { return TCHAR_TO_UTF8(*Driver.Menus().Text()); }

	static FToolMenuSection& ViewSection(const TCHAR* Name)
	{
		return UToolMenus::Get()->ExtendMenu(SLevelViewport::ViewMenuName)->AddSection(Name, FText::FromName(Name));
	}

	static FToolMenuEntry Entry(const TCHAR* Name)
	{
		return FToolMenuEntry::InitMenuEntry(Name, FText::FromName(Name), FText(), FSlateIcon(), FUIAction());
	}
};

TEST_F(Menus, SubMenusAreFreshEachTimeAndAloneAtTheirDepth)
{
	OpenView();
	const auto Fill = [](UToolMenu* Menu)
	{ Menu->AddSection("Own").AddEntry(Entry(Menu->Sections.Num() == 1 ? TEXT("Fresh") : TEXT("Stale"))); };
	for (const TCHAR* Name : {TEXT("One"), TEXT("Two")})
	{
		ViewSection(TEXT("Subs"))
			.AddSubMenu(Name, FText::FromName(Name), FText(), FNewToolMenuDelegate::CreateLambda(Fill));
	}
	const std::string View = "LevelEditor.LevelViewportToolBar.View";
	UToolMenus::Get()
		->ExtendMenu(FName(TEXT("LevelEditor.LevelViewportToolBar.View.One")))
		->AddSection("More")
		.AddEntry(Entry(TEXT("Registered")));
	Driver.Menus().OpenSubMenu(TEXT("Two"));
	TakeTrace();
	for (int Times = 0; Times < 2; ++Times)
	{
		Driver.Menus().OpenSubMenu(TEXT("One"));
		EXPECT_THAT(Text(), HasSubstr("Subs\n  One >\n      Fresh\n      Registered\n  Two >\n"));
	}
	Driver.Menus().CloseAll();
	EXPECT_THAT(
		TakeTrace(), ElementsAre("close menu " + View + ".Two", "generate menu " + View + ".One",
						 "open menu " + View + ".One", "close menu " + View + ".One", "generate menu " + View + ".One",
						 "open menu " + View + ".One", "close menu " + View + ".One", "close menu " + View));
	EXPECT_THROW(Driver.Menus().Click(TEXT("ToggleRealtime")), FDriverError);
}

TEST_F(Menus, RegistryKeepsPlacesAndWarns)
{
	Driver.Start(Options);
	UToolMenus& Registry = *UToolMenus::Get();
	UToolMenu* Menu = Registry.ExtendMenu("Test.Menu");
	EXPECT_FALSE(Registry.IsMenuRegistered("Test.Menu"));
	FToolMenuSection& Section = Menu->AddSection("S", FText::FromString(TEXT("First")));
	for (const TCHAR* Name : {TEXT("A"), TEXT("B"), TEXT("a")})
	{
		Section.AddEntry(Entry(Name));
	}
	ASSERT_EQ(Section.Blocks.Num(), 2);
	EXPECT_TRUE(Section.Blocks[0].Label.Get().EqualTo(FText::FromString(TEXT("a"))));
	EXPECT_TRUE(Menu->AddSection("S").Label.Get().EqualTo(FText::FromString(TEXT("First"))));
	EXPECT_TRUE(Menu->AddSection("S", FText()).Label.Get().IsEmpty());
	EXPECT_EQ(Registry.RegisterMenu("Test.Menu"), Menu);
	EXPECT_EQ(Registry.RegisterMenu("Test.Menu", NAME_None, EMultiBoxType::Menu, false), Menu);
	EXPECT_THAT(TakeLog("LogToolMenus"), ElementsAre());
	EXPECT_EQ(Registry.RegisterMenu("Test.Menu"), Menu);
	Registry.GenerateWidget("Nowhere", FToolMenuContext());
	EXPECT_THAT(TakeLog("LogToolMenus"), ElementsAre("Warning: Menu already registered : Test.Menu",
											 "Warning: Failed to find menu: Nowhere for Nowhere"));
}

TEST_F(Menus, WhatAnOwnerMadeGoesWithIt)
{
	OpenView();
	const FToolMenuEntry Early = Entry(TEXT("Early"));
	int Outer = 0;
	int Inner = 0;
	{
		const FToolMenuOwnerScoped OuterScope(&Outer);
		ViewSection(TEXT("Outer")).AddEntry(Entry(TEXT("Mine")));
		const FToolMenuOwnerScoped InnerScope(&Inner);
		ViewSection(TEXT("Outer")).AddEntry(Early);
		ViewSection(TEXT("Outer")).AddEntry(Entry(TEXT("Other")));
		ViewSection(TEXT("Inner")).AddEntry(Entry(TEXT("Last")));
	}
	UToolMenus::UnregisterOwner(FToolMenuOwner());
	EXPECT_THAT(Text(), HasSubstr("Outer\n  Mine\n  Early\n  Other\nInner\n  Last\n"));
	UToolMenus::UnregisterOwner(&Inner);
	EXPECT_THAT(Text(), testing::EndsWith("View\n  [x] Realtime\nOuter\n  Mine\n  Early\n"));
	EXPECT_EQ(UToolMenus::Get()->FindMenu(SLevelViewport::ViewMenuName)->FindSection("Inner"), nullptr);
	UToolMenus::UnregisterOwner(&Outer);
	Driver.UnloadModule(TEXT("Probe"));
	EXPECT_EQ(Text(), "View\n  [x] Realtime\nOuter\n  Early\n");
}
