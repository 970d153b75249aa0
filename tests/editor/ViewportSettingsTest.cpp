// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the editor module remembers of each level viewport: when it saves, what the file holds, who gets it back.
#include "Editor.h"
#include "LevelEditor.h"
#include "LookTest.h"

#include <filesystem>
#include <fstream>
#include <optional>

using testing::ElementsAre;

namespace
{
constexpr const char* Section = "[/Script/TonalithEditor.TonalithLevelViewportSettings]\r\n";
constexpr const char* WarmText = "\"/Script/Tonalith.TonalithObject'/Game/Looks/Warm.Warm'\"";

std::string Pair(const std::string& Key, const std::string& Record)
{
	return "ViewportsSettings=(ViewportIdentifier=\"" + Key + "\",DisplayConfiguration=(" + Record + "))\r\n";
}

const std::string KeyA = "TwoPanesHoriz.Viewport 1.Viewport0";
const std::string KeyB = "TwoPanesHoriz.Viewport 1.Viewport1";
const std::string Default = "bDisplay=False,Weight=1.000000,Look=None";
} // namespace

class ViewportSettings : public FLookTest
{
protected:
	std::filesystem::path File() const
	{
		return std::filesystem::path(*Options.ProjectFolder) /
			   "Saved/Config/WindowsEditor/EditorPerProjectUserSettings.ini";
	}

	std::string ReadFile() const
	{
		std::ifstream Stream(File(), std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(Stream), {});
	}

	/** What the module did since the last call: each time that it saved, then the handlers that it logged. */
	FLines Done()
	{
		const FLines Trace = TakeTrace();
		FLines Steps(
			static_cast<size_t>(std::ranges::count(Trace, "save config of TonalithLevelViewportSettings")), "saved");
		const FLines Log = TakeLog("LogTemp");
		Steps.insert(Steps.end(), Log.begin(), Log.end());
		return Steps;
	}
};

TEST_F(ViewportSettings, AreSavedWhenAnIdentifierIsNewAndWhenAClientGoes)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	Record(PaneA) = Configured(true, 0.5f, Warm());
	EXPECT_THAT(Done(), ElementsAre()) << "its viewport was not there yet at its own event";
	Driver.OpenPane(PaneB);
	EXPECT_THAT(Done(), ElementsAre("saved"));
	EXPECT_EQ(ReadFile(), Section + Pair(KeyA, std::string("bDisplay=True,Weight=0.500000,Look=") + WarmText) + "\r\n");

	Record(PaneA) = Configured(true, 0.25f, Warm());
	Driver.ClosePane(PaneA);
	EXPECT_THAT(Done(), ElementsAre("saved", "saved", "Warning: OnLevelViewportClientListChanged"))
		<< "the gone client, then the other one's new identifier";
	EXPECT_EQ(ReadFile(), Section + Pair(KeyA, std::string("bDisplay=True,Weight=0.250000,Look=") + WarmText) +
							  Pair(KeyB, Default) + "\r\n");

	Driver.OpenPane(PaneA);
	EXPECT_THAT(Done(), ElementsAre("Warning: SetupViewportDisplaySettings"));
	EXPECT_EQ(Shown(PaneA), "on 0.25 Warm");
	// Even when nothing changed.
	Driver.ClosePane(PaneA);
	EXPECT_THAT(Done(), ElementsAre("saved", "Warning: OnLevelViewportClientListChanged"));
	// One without a record is only forgotten.
	DisplayRecords().RemoveDisplayConfiguration(&Driver.Pane(PaneB).GetLevelViewportClient());
	Driver.ClosePane(PaneB);
	EXPECT_THAT(Done(), ElementsAre());

	Driver.OpenPane(PaneA);
	Record(PaneA) = Configured(false, 0.125f, Warm());
	Driver.PlayInWindow();
	Driver.Quit();
	EXPECT_THAT(Done(),
		ElementsAre("saved", "Warning: SetupViewportDisplaySettings", "Warning: OnLevelViewportClientListChanged"));
	EXPECT_EQ(ReadFile(), Section + Pair(KeyA, std::string("bDisplay=False,Weight=0.125000,Look=") + WarmText) +
							  Pair(KeyB, Default) + "\r\n");
}

TEST_F(ViewportSettings, OfTwoClientsWithOneIdentifierTheLaterEndWins)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	Driver.OpenPane(PaneB);
	const TSharedPtr<SLevelViewport> Widget = StaticCastSharedRef<SLevelViewport>(Driver.Pane(PaneA).AsShared());

	// A camera preview shares its pane's widget and identifier. Each comes back at the same address.
	std::optional<FLevelEditorViewportClient> Preview;
	for (const float Weight : {0.25f, 0.75f})
	{
		Preview.emplace(Widget);
		FTonalithDisplayConfiguration& Found = DisplayRecords().FindOrAddDisplayConfiguration(&*Preview);
		EXPECT_EQ(RecordText(Found), Weight == 0.25f ? "off 1 no look" : "off 0.25 no look");
		Found.Weight = Weight;
		const FViewportClient* const Address = &*Preview;
		Preview.reset();
		EXPECT_FALSE(HasRecord(Address));
	}
	Record(PaneA).Weight = 0.125f;
	Driver.ClosePane(PaneA);
	Driver.OpenPane(PaneA);
	EXPECT_EQ(Shown(PaneA), "off 0.75 no look") << "the pane still lives as long as its widget is held";
}

TEST_F(ViewportSettings, AGoneClientIsSavedBeforeANewOneAsks)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	OpenLookMenu();
	Driver.Menus().CloseAll();
	FLevelEditorModule& LevelEditor = FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor");
	const TSharedRef<SLevelViewport> Second = LevelEditor.OpenPane(FName(PaneA));
	Record(PaneA) = Configured(true, 0.5f, Warm());
	Driver.ClosePane(PaneA);
	EXPECT_EQ(Shown(PaneA), "on 0.5 Warm") << "neither pane was in the file";
	EXPECT_EQ(&Driver.Pane(PaneA), &*Second);
}

TEST_F(ViewportSettings, WhatTheModuleDoesNotTrackIsDroppedWithItsClient)
{
	Driver.Start(Options);
	TakeTrace();
	// No panes: neither is set up, but other code gives them records.
	std::optional<FLevelEditorViewportClient> WithoutWidget(nullptr);
	std::optional<FEditorViewportClient> OfAnAssetEditor{TWeakPtr<SEditorViewport>()};
	for (FViewportClient* Client : std::initializer_list<FViewportClient*>{&*WithoutWidget, &*OfAnAssetEditor})
	{
		EXPECT_FALSE(HasRecord(Client));
		DisplayRecords().FindOrAddDisplayConfiguration(Client);
	}
	const FViewportClient* const Addresses[] = {&*WithoutWidget, &*OfAnAssetEditor};
	WithoutWidget.reset();
	EXPECT_FALSE(HasRecord(Addresses[0]));
	EXPECT_TRUE(HasRecord(Addresses[1]));
	OfAnAssetEditor.reset();
	EXPECT_FALSE(HasRecord(Addresses[1]));
	EXPECT_THAT(Done(), ElementsAre());
}

TEST_F(ViewportSettings, OfDuplicatePairsTheFirstIsUsedAndUpdatedAndTheOthersStay)
{
	const std::string Others = Pair(KeyA, Default) + Pair("", Default) + "Other=kept\r\n\r\n";
	std::filesystem::create_directories(File().parent_path());
	std::ofstream(File(), std::ios::binary)
		<< Section + Pair(KeyA, std::string("bDisplay=True,Strange=(A=1,B=\")\"),Weight=0.500000,Look=") + WarmText) +
			   Others;
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	EXPECT_EQ(Shown(PaneA), "on 0.5 Warm");
	Record(PaneA).Weight = 0.25f;
	Driver.ClosePane(PaneA);
	EXPECT_EQ(ReadFile(), Section + Pair(KeyA, std::string("bDisplay=True,Weight=0.250000,Look=") + WarmText) + Others);
}
