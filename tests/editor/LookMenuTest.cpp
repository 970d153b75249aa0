// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look's sub-menu in the "View" menu of a pane, clicked by the driver.
#include "Editor.h"
#include "Host/Trace.h"
#include "ImportOverride.h"
#include "LookTest.h"
#include "ToolMenus.h"

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;

namespace
{
const std::string ViewMenu = "LevelEditor.LevelViewportToolBar.View";
constexpr const char* WidgetMenu = "TonalithWidget.DisplayConfiguration";

/** What a user cannot see of a section: names, tool tips and flags of its entries, and of what these open. */
std::string Described(const FToolMenuSection& Section, const std::string& Indent = "\n")
{
	std::string Text = Indent + TCHAR_TO_UTF8(*Section.Name.ToString());
	for (const FToolMenuEntry& Entry : Section.Blocks)
	{
		Text += Indent + "  " + TCHAR_TO_UTF8(*Entry.Name.ToString());
		Text += ", type " + std::to_string(int(Entry.UserInterfaceActionType));
		Text += Entry.bShouldCloseWindowAfterMenuSelection ? ", closes" : "";
		Text += Entry.SubMenuData.bOpenSubMenuOnClick ? ", on click" : "";
		Text += Entry.WidgetData.bNoIndent ? ", no indent" : "";
		Text += Entry.WidgetData.bNoPadding ? ", no padding" : "";
		Text += Entry.WidgetData.bSearchable ? ", searchable: " : ": ";
		Text += TCHAR_TO_UTF8(*Entry.ToolTip.Get().ToString());
		UToolMenu& Opened = *new UToolMenu();
		Entry.SubMenuData.ConstructMenu.NewToolMenu.ExecuteIfBound(&Opened);
		for (const FToolMenuSection& Inner : Opened.Sections)
		{
			Text += Described(Inner, Indent + "    ");
		}
	}
	return Text;
}
} // namespace

class LookMenu : public FLookTest
{
protected:
	/** Beside the looks: one of the same name elsewhere, and an asset that is no look. */
	LookMenu()
	{
		HostAssets::Write(
			Options.ProjectFolder, TEXT("/Script/Tonalith.TonalithObject"), TEXT("/Game/Others/Warm.Warm"));
		HostAssets::Write(Options.ProjectFolder, TEXT("/Script/TonalithEditor.TonalithObjectFactoryNew"),
			TEXT("/Game/Looks/Factory.Factory"));
	}

	void OpenPicker()
	{
		OpenLookMenu();
		Driver.Menus().OpenSubMenu(TEXT("TNLAssetSelection"));
	}

	/** What stays bound of the module would reach it dead through the panes. */
	void Unload()
	{
		Driver.Menus().CloseAll();
		const void* Module = FModuleManager::Get().GetModule("TonalithEditor");
		Driver.UnloadModule(TEXT("TonalithEditor"));
		GEditor->OnLevelViewportClientListChanged().RemoveAll(Module);
		Driver.Menus().OpenViewMenu();
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
					  "          Cold\n          Warm\n          Warm\nView\n  [x] Realtime\n");
	EXPECT_THAT(TakeTrace(), AllOf(Contains(std::string("register menu ") + WidgetMenu),
								 Contains("open menu " + ViewMenu + ".TNLDisplaySubMenu"),
								 Contains(std::string("open menu ") + WidgetMenu + ".TNLAssetSelection")));
	Driver.Menus().Click(TEXT("Warm"));
	EXPECT_EQ(Shown(PaneA), "off 1 Warm");
	EXPECT_EQ(Record(PaneA).Look, Warm());

	// The chosen look is not offered again, but can be cleared.
	OpenPicker();
	EXPECT_THAT(Text(), HasSubstr("      Warm >\n        STonalithWidget.TNLAssetSelection2_Label\n          Edit\n"
								  "          Clear\n          Cold\n          Warm\nView"));
	EXPECT_THAT(TakeTrace(), Not(Contains(HasSubstr("register menu"))));
}

TEST_F(LookMenu, HasItsNamesTipsAndFlagsHoweverOftenItOpens)
{
	StartWithPanes();
	UToolMenus& Menus = *UToolMenus::Get();
	for (int Times = 0; Times < 3; ++Times)
	{
		EXPECT_EQ(Described(*Menus.FindMenu(SLevelViewport::ViewMenuName)->FindSection("ColorManagement")), R"(
ColorManagement
  TNLDisplaySubMenu, type 1, closes, searchable: TonalithEditorModule.TNLDisplaySubMenu_ToolTip
    DisplayConfiguration
      TonalithConfigurationWidget, type 1, closes, no indent: )");
		ASSERT_EQ(Menus.FindMenu(WidgetMenu)->Sections.Num(), 1);
		EXPECT_EQ(Described(Menus.FindMenu(WidgetMenu)->Sections[0]), R"(
DisplayConfiguration
  EnableDisplay, type 2, closes, searchable: STonalithWidget.EnableDisplay_ToolTip
  TNLAssetSelection, type 0, closes, searchable: STonalithWidget.TNLAssetSelection_Tooltip
    TNLAssetSelection
      TNLAssetPickerWidget, type 1, closes, no indent: )");
	}
}

TEST_F(LookMenu, TogglingTwiceLeavesTheWeightAtOne)
{
	StartWithPanes();
	Record(PaneA) = Configured(false, 0.25f, Warm());
	OpenLookMenu();
	Driver.Menus().ClickCheckBox(TEXT("EnableDisplay"));
	EXPECT_THAT(Text(), HasSubstr("[x] STonalithWidget.EnableDisplay_Label"));
	EXPECT_EQ(Shown(PaneA), "on 1 Warm");
	Record(PaneA).Weight = 0.5f;
	Driver.Menus().Click(TEXT("EnableDisplay"));
	EXPECT_EQ(Text(), "");
	EXPECT_EQ(Shown(PaneA), "off 1 Warm");
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
	for (const TCHAR* Row : {TEXT("Warm"), TEXT("Clear")})
	{
		OpenPicker();
		TakeTrace();
		Driver.Menus().Click(Row);
		EXPECT_THAT(TakeTrace(), ElementsAre(std::string("close menu ") + WidgetMenu + ".TNLAssetSelection",
									 "close menu " + ViewMenu + ".TNLDisplaySubMenu", "reach the record"));
		EXPECT_THAT(Text(), EndsWith("TonalithEditorModule.TNLDisplaySubMenu_Label >\nView\n  [x] Realtime\n"));
	}
	EXPECT_EQ(Shown(PaneA), "off 1 no look");
}

TEST_F(LookMenu, AChoiceThatIsNoLookIsSentAsNone)
{
	StartWithPanes();
	const auto ChooseAfter = [&](const auto& Change)
	{
		Record(PaneA) = Configured(true, 0.5f, Cold());
		OpenPicker();
		Change();
		Driver.Menus().Click(TEXT("Warm"));
		EXPECT_EQ(Shown(PaneA), "on 0.5 no look");
	};
	// Another object took the asset's name; the asset is deleted.
	ChooseAfter([]
		{ NewObject<UObject>(CreatePackage(TEXT("/Game/Looks/Warm")), UPackage::StaticClass(), FName(TEXT("Warm"))); });
	StaticFindObject(UObject::StaticClass(), WarmPath)->MarkAsGarbage();
	ChooseAfter([] { HostAssets::Delete(*Warm()); });
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
	EXPECT_EQ(Shown(PaneA), "off 1 no look");
}

TEST_F(LookMenu, WhatIsClickedGoesToThePaneThatIsActiveThen)
{
	StartWithPanes();
	Record(PaneA) = Configured(false, 0.5f, Warm());
	OpenLookMenu();
	Driver.ActivatePane(PaneB);
	// Changes made elsewhere are not seen by the open menu.
	Record(PaneB) = Configured(true, 0.75f, Cold());
	EXPECT_THAT(Text(), HasSubstr("[ ] STonalithWidget.EnableDisplay_Label"));
	Driver.Menus().Click(TEXT("EnableDisplay"));
	EXPECT_EQ(Shown(PaneA), "off 0.5 Warm");
	EXPECT_EQ(Shown(PaneB), "on 1 Warm");
}

TEST_F(LookMenu, OpeningTracksThePaneAndMakesItsRecordButSavesNothing)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	const FViewportClient* const Client = &Driver.Pane(PaneA).GetLevelViewportClient();
	DisplayRecords().RemoveDisplayConfiguration(Client);
	TakeTrace();
	OpenLookMenu();
	ASSERT_TRUE(HasRecord(Client));
	EXPECT_EQ(Shown(PaneA), "off 1 no look");
	EXPECT_THAT(TakeTrace(), Not(Contains(HasSubstr("save config"))));
	Driver.Menus().CloseAll();
	Driver.ClosePane(PaneA);
	EXPECT_THAT(TakeTrace(), Contains("save config of TonalithLevelViewportSettings"));
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

TEST_F(LookMenu, JoinsAnothersSectionAndGoesWithTheModuleButForTheWidgetsMenu)
{
	Options.PluginFolders = {TEXT(EDITOR_TEST_PLUGINS) TEXT("/../others"), TEXT(EDITOR_TEST_PLUGINS)};
	StartWithPanes();
	Driver.Menus().OpenViewMenu();
	const std::string Theirs = "Color Tools\n  [ ] False Colors\n";
	EXPECT_EQ(Text(), Theirs + "  TonalithEditorModule.TNLDisplaySubMenu_Label >\nView\n  [x] Realtime\n");
	Driver.Menus().OpenSubMenu(TEXT("TNLDisplaySubMenu"));
	Unload();
	EXPECT_EQ(Text(), Theirs + "View\n  [x] Realtime\n");
	EXPECT_TRUE(UToolMenus::Get()->IsMenuRegistered(WidgetMenu));
}
