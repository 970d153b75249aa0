// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look's sub-menu in the "View" menu of a pane, clicked by the driver.
#include "Editor.h"
#include "Host/Trace.h"
#include "ImportOverride.h"
#include "LookTest.h"
#include "ToolMenus.h"

#include <psapi.h>

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;

namespace
{
const std::string ViewMenu = "LevelEditor.LevelViewportToolBar.View";

size_t PrivateBytes()
{
	PROCESS_MEMORY_COUNTERS Counters{};
	GetProcessMemoryInfo(GetCurrentProcess(), &Counters, sizeof Counters);
	return Counters.PagefileUsage;
}
} // namespace

class LookMenu : public FLookTest
{
protected:
	void OpenLookMenu()
	{
		Driver.Menus().OpenViewMenu();
		Driver.Menus().OpenSubMenu(TEXT("TNLDisplaySubMenu"));
	}

	void OpenPicker()
	{
		OpenLookMenu();
		Driver.Menus().OpenSubMenu(TEXT("TNLAssetSelection"));
	}

	/** What stays bound of the module would reach it dead through the panes. */
	void Unload()
	{
		const void* Module = FModuleManager::Get().GetModule("TonalithEditor");
		Driver.UnloadModule(TEXT("TonalithEditor"));
		GEditor->OnLevelViewportClientListChanged().RemoveAll(Module);
	}

	std::string Text() { return TCHAR_TO_UTF8(*Driver.Menus().Text()); }
};

TEST_F(LookMenu, ShowsKeysWithoutStringsAndTheLooksName)
{
	StartWithPanes();
	OpenPicker();
	EXPECT_EQ(Text(), "TonalithEditorModule.ColorManagement_Label\n"
					  "  TonalithEditorModule.TNLDisplaySubMenu_Label >\n"
					  "    TonalithEditorModule.DisplayConfiguration_Label\n"
					  "      [ ] STonalithWidget.EnableDisplay_Label\n"
					  "      STonalithWidget.TNLAssetSelection_Label >\n"
					  "        STonalithWidget.TNLAssetSelection2_Label\n"
					  "          Cold\n          Warm\nView\n  [x] Realtime\n");
	EXPECT_THAT(TakeTrace(), AllOf(Contains("register menu TonalithWidget.DisplayConfiguration"),
								 Contains("open menu " + ViewMenu + ".TNLDisplaySubMenu"),
								 Contains("open menu TonalithWidget.DisplayConfiguration.TNLAssetSelection")));
	Driver.Menus().Click(TEXT("Warm"));
	EXPECT_EQ(Record(PaneA).Look, Warm());
	EXPECT_FALSE(Record(PaneA).bDisplay);

	// The chosen look is not offered again, but can be cleared.
	OpenPicker();
	EXPECT_THAT(Text(), HasSubstr("      Warm >\n        STonalithWidget.TNLAssetSelection2_Label\n          Edit\n"
								  "          Clear\n          Cold\n"));
	EXPECT_THAT(TakeTrace(), Not(Contains(HasSubstr("register menu"))));
	EXPECT_THAT(TakeLog("LogToolMenus"), ElementsAre());
	Driver.Quit();
}

TEST_F(LookMenu, TogglingTwiceLeavesTheWeightAtOne)
{
	StartWithPanes();
	Record(PaneA) = Configured(false, 0.25f, Warm());
	OpenLookMenu();
	Driver.Menus().ClickCheckBox(TEXT("EnableDisplay"));
	EXPECT_THAT(Text(), HasSubstr("[x] STonalithWidget.EnableDisplay_Label"));
	EXPECT_TRUE(Record(PaneA).bDisplay);
	EXPECT_EQ(Record(PaneA).Weight, 1.0f);
	Record(PaneA).Weight = 0.5f;
	Driver.Menus().Click(TEXT("EnableDisplay"));
	EXPECT_EQ(Text(), "");
	EXPECT_FALSE(Record(PaneA).bDisplay);
	EXPECT_EQ(Record(PaneA).Weight, 1.0f);
	EXPECT_EQ(Record(PaneA).Look, Warm());
	Driver.Quit();
}

TEST_F(LookMenu, AChoiceClosesItsMenuBeforeItIsSent)
{
	StartWithPanes();
	const ImportOverride sending(
		"_ZN23FTonalithDisplayManager29FindOrAddDisplayConfigurationEP15FViewportClient",
		static_cast<FTonalithDisplayConfiguration& (*)(FTonalithDisplayManager*, FViewportClient*)>(nullptr),
		[](FTonalithDisplayManager* Manager, FViewportClient* Client) -> FTonalithDisplayConfiguration&
		{
			HostTrace::Line(TEXT("reach the record"));
			return Manager->FindOrAddDisplayConfiguration(Client);
		},
		EditorLibrary());
	const std::string Picker = "TonalithWidget.DisplayConfiguration.TNLAssetSelection";
	for (const TCHAR* Row : {TEXT("Warm"), TEXT("Clear")})
	{
		OpenPicker();
		TakeTrace();
		Driver.Menus().Click(Row);
		EXPECT_THAT(TakeTrace(),
			ElementsAre("close menu " + Picker, "close menu " + ViewMenu + ".TNLDisplaySubMenu", "reach the record"));
		EXPECT_THAT(
			Text(), testing::EndsWith("TonalithEditorModule.TNLDisplaySubMenu_Label >\nView\n  [x] Realtime\n"));
	}
	EXPECT_EQ(Record(PaneA).Look, nullptr);
	Driver.Quit();
}

TEST_F(LookMenu, AChoiceThatIsNoLookIsSentAsNone)
{
	StartWithPanes();
	const auto ChooseAfter = [&](const TCHAR* Name, const auto& Change)
	{
		Record(PaneA) = Configured(true, 0.5f, static_cast<UTonalithObject*>(HostAssets::GetAll()[0].GetAsset()));
		OpenPicker();
		Change();
		Driver.Menus().Click(Name);
		EXPECT_EQ(Record(PaneA).Look, nullptr);
		EXPECT_TRUE(Record(PaneA).bDisplay);
		EXPECT_EQ(Record(PaneA).Weight, 0.5f);
	};
	// Another object took the asset's name; the asset is deleted.
	ChooseAfter(TEXT("Warm"), []
		{ NewObject<UObject>(CreatePackage(TEXT("/Game/Looks/Warm")), UPackage::StaticClass(), FName(TEXT("Warm"))); });
	StaticFindObject(UObject::StaticClass(), WarmPath)->MarkAsGarbage();
	ChooseAfter(TEXT("Warm"), [] { HostAssets::Delete(*Warm()); });
	Driver.Quit();
}

TEST_F(LookMenu, ALookThatIsDeletedWhileItsMenuIsOpenIsNoLonger)
{
	StartWithPanes();
	Record(PaneA) = Configured(true, 0.5f, Warm());
	OpenLookMenu();
	EXPECT_THAT(Text(), HasSubstr("      Warm >\n"));
	HostAssets::Delete(*Warm());
	CollectGarbage();
	EXPECT_THAT(Text(), HasSubstr("      STonalithWidget.TNLAssetSelection_Label >\n"));
	Driver.Menus().ClickCheckBox(TEXT("EnableDisplay"));
	EXPECT_EQ(Record(PaneA).Look, nullptr);
	Driver.Quit();
}

TEST_F(LookMenu, WhatIsClickedGoesToThePaneThatIsActiveThen)
{
	StartWithPanes();
	OpenPicker();
	Driver.Menus().Click(TEXT("Warm"));
	OpenLookMenu();
	Driver.ActivatePane(PaneB);
	// Changes made elsewhere are not seen by the open menu.
	Record(PaneB) = Configured(true, 0.75f, nullptr);
	EXPECT_THAT(Text(), HasSubstr("[ ] STonalithWidget.EnableDisplay_Label"));
	Driver.Menus().Click(TEXT("EnableDisplay"));
	EXPECT_FALSE(Record(PaneA).bDisplay);
	EXPECT_TRUE(Record(PaneB).bDisplay);
	EXPECT_EQ(Record(PaneB).Weight, 1.0f);
	EXPECT_EQ(Record(PaneB).Look, Warm());
	Driver.Quit();
}

TEST_F(LookMenu, OpeningTracksThePaneAndMakesItsRecordButSavesNothing)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	DisplayRecords().RemoveDisplayConfiguration(&Driver.Pane(PaneA).GetLevelViewportClient());
	TakeTrace();
	OpenLookMenu();
	const FTonalithDisplayConfiguration* Made =
		DisplayRecords().GetDisplayConfiguration(&Driver.Pane(PaneA).GetLevelViewportClient());
	ASSERT_NE(Made, nullptr);
	EXPECT_FALSE(Made->bDisplay);
	EXPECT_THAT(TakeTrace(), Not(Contains(HasSubstr("save config"))));
	Driver.Menus().CloseAll();
	Driver.ClosePane(PaneA);
	EXPECT_THAT(TakeTrace(), Contains("save config of TonalithLevelViewportSettings"));
	Driver.Quit();
}

TEST_F(LookMenu, OpeningWhileAPanePlaysIsFatal)
{
	EXPECT_EXIT(
		{
			StartWithPanes();
			Driver.PlayInPane();
			OpenLookMenu();
		},
		ExitedWithCode(3), HasSubstr("Assertion failed: AssociatedClient && *AssociatedClient "));
}

TEST_F(LookMenu, AMissingSectionOrMenuIsFatal)
{
	const auto WithoutSection = [&]
	{
		const ImportOverride section(
			"_ZN9UToolMenu11FindSectionE5FName", static_cast<FToolMenuSection* (*)(UToolMenu*, FName)>(nullptr),
			[](UToolMenu*, FName) -> FToolMenuSection* { return nullptr; }, EditorLibrary());
		StartWithPanes();
	};
	EXPECT_EXIT(WithoutSection(), ExitedWithCode(3), HasSubstr("Assertion failed: Section "));
	const auto WithoutMenu = [&]
	{
		StartWithPanes();
		const ImportOverride menu(
			"_ZN10UToolMenus12RegisterMenuE5FNameS0_13EMultiBoxTypeb",
			static_cast<UToolMenu* (*)(UToolMenus*, FName, FName, EMultiBoxType, bool)>(nullptr),
			[](UToolMenus*, FName, FName, EMultiBoxType, bool) -> UToolMenu* { return nullptr; }, EditorLibrary());
		OpenLookMenu();
	};
	EXPECT_EXIT(WithoutMenu(), ExitedWithCode(3), HasSubstr("Assertion failed: Menu "));
}

TEST_F(LookMenu, GoesWithTheModuleButForTheWidgetsMenu)
{
	StartWithPanes();
	OpenLookMenu();
	Driver.Menus().CloseAll();
	CollectGarbage();
	Unload();
	Driver.Menus().OpenViewMenu();
	EXPECT_EQ(Text(), "View\n  [x] Realtime\n");
	UToolMenus& Menus = *UToolMenus::Get();
	EXPECT_EQ(Menus.FindMenu(SLevelViewport::ViewMenuName)->FindSection("ColorManagement"), nullptr);
	EXPECT_TRUE(Menus.IsMenuRegistered("TonalithWidget.DisplayConfiguration"));
	Driver.Menus().CloseAll();
	Driver.Quit();
}

TEST_F(LookMenu, JoinsASectionThatAnotherExtensionMade)
{
	const ImportOverride menu(
		"_ZN10UToolMenus10ExtendMenuE5FName", static_cast<UToolMenu* (*)(UToolMenus*, FName)>(nullptr),
		[](UToolMenus* Menus, FName Name)
		{
			UToolMenu* Menu = Menus->ExtendMenu(Name);
			const FToolMenuOwnerScoped Other(Menu);
			Menu->AddSection("ColorManagement", FText::FromString(TEXT("Color Tools")));
			return Menu;
		},
		EditorLibrary());
	StartWithPanes();
	Driver.Menus().OpenViewMenu();
	EXPECT_THAT(Text(), testing::StartsWith("Color Tools\n  TonalithEditorModule.TNLDisplaySubMenu_Label >\n"));
	EXPECT_THAT(Text(), Not(HasSubstr("ColorManagement_Label")));
	Unload();
	EXPECT_NE(UToolMenus::Get()->FindMenu(SLevelViewport::ViewMenuName)->FindSection("ColorManagement"), nullptr);
	Driver.Quit();
}

TEST_F(LookMenu, AThousandTimesGrowsNothing)
{
	StartWithPanes();
	size_t AfterWarmUp = 0;
	for (int Times = 0; Times < 1000; ++Times)
	{
		OpenPicker();
		Driver.Menus().CloseAll();
		CollectGarbage();
		TakeTrace();
		AfterWarmUp = Times == 100 ? PrivateBytes() : AfterWarmUp;
	}
	EXPECT_LT(PrivateBytes(), AfterWarmUp + (1 << 20));
	const UToolMenu* Menu = UToolMenus::Get()->FindMenu("TonalithWidget.DisplayConfiguration");
	ASSERT_EQ(Menu->Sections.Num(), 1);
	EXPECT_EQ(Menu->Sections[0].Blocks.Num(), 2);
	OpenPicker();
	EXPECT_EQ(std::ranges::count(Text(), '\n'), 10);
	Driver.Quit();
}
