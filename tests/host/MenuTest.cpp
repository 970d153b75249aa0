// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Menus as a plug-in and a user see them.
#include "EditorTest.h"
#include "Host/Assets.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "ToolMenus.h"

using testing::ElementsAre;
using testing::HasSubstr;

class Menus : public FEditorTest
{
protected:
	void Start()
	{
		for (const TCHAR* Name : {TEXT("Cold"), TEXT("Warm")})
		{
			HostAssets::Write(Options.ProjectFolder, TEXT("/Script/Probe.ProbeSettings"),
				FString::Printf(TEXT("/Game/Looks/%s.%s"), Name, Name));
		}
		HostAssets::Write(Options.ProjectFolder, TEXT("/Script/Nowhere.Other"), TEXT("/Game/Other.Other"));
		Driver.Start(Options);
		Driver.OpenPane(TEXT("A"));
	}

	void OpenProbe()
	{
		Driver.Menus().OpenViewMenu();
		Driver.Menus().OpenSubMenu(TEXT("Probe"));
		TakeLog("LogProbeMenu");
	}

	std::string Text() { return TCHAR_TO_UTF8(*Driver.Menus().Text()); }

	FToolMenuSection& ViewSection(const TCHAR* Name)
	{
		return UToolMenus::Get()->ExtendMenu(SLevelViewport::ViewMenuName)->AddSection(Name, FText::FromName(Name));
	}

	static FToolMenuEntry Entry(const TCHAR* Name)
	{
		return FToolMenuEntry::InitMenuEntry(Name, FText::FromName(Name), FText(), FSlateIcon(), FUIAction());
	}
};

TEST_F(Menus, UserSeesWhatIsOpen)
{
	Start();
	const FName SubMenu = "LevelEditor.LevelViewportToolBar.View.Probe";
	UToolMenus::Get()->ExtendMenu(SubMenu)->AddSection("More").AddEntry(Entry(TEXT("Own")));
	ViewSection(TEXT("Empty"));
	EXPECT_EQ(Text(), "");
	OpenProbe();
	Driver.Menus().OpenSubMenu(TEXT("Choice"));
	const std::string Front = "Probing\n  Probe >\n    Widget\n      [x] Is enabled\n      Choose >\n";
	EXPECT_EQ(Text(), Front + "        Assets\n          Cold\n          Warm\n      Own\nView\n  [x] Realtime\n");

	TakeTrace();
	Driver.Menus().OpenSubMenu(TEXT("Probe"));
	EXPECT_EQ(Text(), Front + "      Own\nView\n  [x] Realtime\n");
	Driver.Menus().CloseAll();
	const std::string View = "LevelEditor.LevelViewportToolBar.View";
	EXPECT_THAT(
		TakeTrace(), ElementsAre("close menu Probe.Widget.Choice", "close menu " + View + ".Probe",
						 "generate menu " + View + ".Probe", "generate menu Probe.Widget",
						 "open menu " + View + ".Probe", "close menu " + View + ".Probe", "close menu " + View));
	EXPECT_THROW(Driver.Menus().Click(TEXT("ToggleRealtime")), FDriverError);
}

TEST_F(Menus, ToggleClosesAllMenusButItsCheckBoxNone)
{
	Start();
	OpenProbe();
	Driver.Menus().ClickCheckBox(TEXT("Enabled"));
	EXPECT_THAT(TakeLog("LogProbeMenu"), ElementsAre("Display: off, 2 menus open"));
	EXPECT_THAT(Text(), HasSubstr("[ ] Is enabled"));
	Driver.Menus().Click(TEXT("Enabled"));
	EXPECT_THAT(TakeLog("LogProbeMenu"), ElementsAre("Display: on, 0 menus open"));

	// The menu object kept the widget alive for its action, and does until the collection.
	CollectGarbage();
	EXPECT_THAT(TakeLog("LogProbeMenu"), ElementsAre("Display: widget destroyed"));
	Driver.Menus().OpenViewMenu();
	Driver.Menus().OpenSubMenu(TEXT("Probe"));
	EXPECT_THAT(
		TakeLog("LogProbeMenu"), ElementsAre("Display: LevelEditor.LevelViewportToolBar.View.Probe has 0 sections"));
}

TEST_F(Menus, PickerCallsInTheEnginesOrder)
{
	Start();
	OpenProbe();
	Driver.Menus().OpenSubMenu(TEXT("Choice"));
	EXPECT_THROW(Driver.Menus().Click(TEXT("Clear")), FDriverError);
	EXPECT_THROW(Driver.Menus().Click(TEXT("Other")), FDriverError);
	Driver.Menus().Click(TEXT("Warm"));
	EXPECT_THAT(
		TakeLog("LogProbeMenu"), ElementsAre("Display: set Warm, 3 menus open", "Display: closed, 1 menus open"));
	EXPECT_EQ(Text(), "Probing\n  Probe >\nView\n  [x] Realtime\n");

	OpenProbe();
	Driver.Menus().OpenSubMenu(TEXT("Choice"));
	EXPECT_THAT(
		Text(), HasSubstr("      Warm >\n        Assets\n          Edit\n          Clear\n          Cold\nView"));
	EXPECT_THROW(Driver.Menus().Click(TEXT("Warm")), FDriverError);
	Driver.Menus().Click(TEXT("Clear"));
	EXPECT_THAT(
		TakeLog("LogProbeMenu"), ElementsAre("Display: set None, 2 menus open", "Display: closed, 1 menus open"));
}

TEST_F(Menus, RegistryKeepsPlacesAndWarns)
{
	Start();
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
	Start();
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
	OpenProbe();
	const std::string Front = "Probing\n  Probe >\nView\n  [x] Realtime\nOuter\n";
	UToolMenus::UnregisterOwner(FToolMenuOwner());
	EXPECT_THAT(Text(), HasSubstr("Outer\n  Mine\n  Early\n  Other\nInner\n  Last\n"));
	UToolMenus::UnregisterOwner(&Inner);
	EXPECT_EQ(Text(), Front + "  Mine\n  Early\n");
	EXPECT_EQ(UToolMenus::Get()->FindMenu(SLevelViewport::ViewMenuName)->FindSection("Inner"), nullptr);
	UToolMenus::UnregisterOwner(&Outer);
	Driver.UnloadModule(TEXT("Probe"));
	EXPECT_EQ(Text(), "View\n  [x] Realtime\nOuter\n  Early\n");
}

TEST_F(Menus, OpeningAndClosingGrowsNothing)
{
	Start();
	size_t AfterFirst = 0;
	for (int Times = 0; Times < 1000; ++Times)
	{
		OpenProbe();
		Driver.Menus().OpenSubMenu(TEXT("Choice"));
		Driver.Menus().CloseAll();
		CollectGarbage();
		AfterFirst = Times == 0 ? HostObjects::Num() : AfterFirst;
	}
	EXPECT_EQ(HostObjects::Num(), AfterFirst);
	EXPECT_EQ(TakeLog("LogProbeMenu").size(), 1u);
}
