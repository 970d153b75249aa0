// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the editor module remembers of each level viewport: when it saves, what the file holds, who gets it back.
#include "Editor.h"
#include "LookTest.h"
#include "UObject/UnrealType.h"

#include <filesystem>
#include <fstream>
#include <optional>

using testing::ElementsAre;
using testing::IsEmpty;

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

	void WriteFile(const std::string& Text) const
	{
		std::filesystem::create_directories(File().parent_path());
		std::ofstream(File(), std::ios::binary) << Text;
	}

	std::string ReadFile() const
	{
		std::ifstream Stream(File(), std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(Stream), {});
	}

	/** How often the settings were saved since the last call. */
	ptrdiff_t TakeSaves()
	{
		const FLines Trace = TakeTrace();
		return std::count(Trace.begin(), Trace.end(), "save config of TonalithLevelViewportSettings");
	}
};

TEST_F(ViewportSettings, AreSavedWhenAnIdentifierIsNewAndWhenAClientGoes)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	EXPECT_EQ(TakeSaves(), 0) << "its viewport was not there yet at its own event";
	Driver.OpenPane(PaneB);
	EXPECT_EQ(TakeSaves(), 1);
	EXPECT_EQ(ReadFile(), Section + Pair(KeyA, Default) + "\r\n");
	EXPECT_THAT(TakeLog("LogTemp"), IsEmpty());

	Record(PaneA) = Configured(true, 0.5f, Warm());
	EXPECT_EQ(TakeSaves(), 0) << "changes wait for the client's end";
	Driver.ClosePane(PaneA);
	EXPECT_EQ(TakeSaves(), 2) << "the gone client, then the other one's new identifier";
	EXPECT_EQ(ReadFile(), Section + Pair(KeyA, std::string("bDisplay=True,Weight=0.500000,Look=") + WarmText) +
							  Pair(KeyB, Default) + "\r\n");
	EXPECT_THAT(TakeLog("LogTemp"), ElementsAre("Warning: OnLevelViewportClientListChanged"));

	Driver.OpenPane(PaneA);
	EXPECT_EQ(TakeSaves(), 0);
	EXPECT_THAT(TakeLog("LogTemp"), ElementsAre("Warning: SetupViewportDisplaySettings"));
	EXPECT_TRUE(Record(PaneA).bDisplay);
	EXPECT_EQ(Record(PaneA).Weight, 0.5f);
	EXPECT_EQ(Record(PaneA).Look.Get(), Warm());

	// Even when nothing changed.
	Driver.ClosePane(PaneA);
	EXPECT_EQ(TakeSaves(), 1);
	Driver.Quit();
	EXPECT_EQ(TakeSaves(), 1);
}

TEST_F(ViewportSettings, AClientWithoutRecordIsOnlyForgotten)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	Driver.OpenPane(PaneB);
	TakeSaves();
	const FViewportClient* Gone = &Driver.Pane(PaneA).GetLevelViewportClient();
	EXPECT_TRUE(DisplayRecords().RemoveDisplayConfiguration(Gone));
	Driver.ClosePane(PaneA);
	EXPECT_EQ(TakeSaves(), 1) << "the identifier of the other pane";
	EXPECT_THAT(TakeLog("LogTemp"), IsEmpty());
	EXPECT_EQ(DisplayRecords().GetDisplayConfiguration(Gone), nullptr);
}

TEST_F(ViewportSettings, RecordsOfGoneClientsLeaveTheRegistry)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	Driver.OpenPane(PaneB);
	const TSharedPtr<SLevelViewport> Widget = StaticCastSharedRef<SLevelViewport>(Driver.Pane(PaneA).AsShared());

	// A camera preview shares its pane's widget and identifier; the later end wins. Each comes back at the same address.
	std::optional<FLevelEditorViewportClient> Preview;
	for (const float Weight : {0.25f, 0.75f})
	{
		Preview.emplace(Widget);
		EXPECT_EQ(DisplayRecords().GetDisplayConfiguration(&*Preview)->Weight, Weight == 0.25f ? 1.0f : 0.25f);
		const FViewportClient* const Address = &*Preview;
		DisplayRecords().FindOrAddDisplayConfiguration(&*Preview).Weight = Weight;
		Preview.reset();
		EXPECT_EQ(DisplayRecords().GetDisplayConfiguration(Address), nullptr);
	}
	Record(PaneA).Weight = 0.125f;
	Driver.ClosePane(PaneA);
	Driver.OpenPane(PaneA);
	EXPECT_EQ(Record(PaneA).Weight, 0.75f) << "the pane still lives as long as its widget is held";
}

TEST_F(ViewportSettings, ADeletedLookIsForgotten)
{
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	Driver.OpenPane(PaneB);
	Record(PaneA) = Configured(true, 0.5f, Warm());
	Driver.ClosePane(PaneA);
	HostAssets::Delete(*Warm());
	CollectGarbage();
	Driver.OpenPane(PaneA);
	EXPECT_EQ(Record(PaneA).Look.Get(), nullptr);
	Driver.ClosePane(PaneB);
	EXPECT_THAT(ReadFile(), testing::HasSubstr(Pair(KeyA, "bDisplay=True,Weight=0.500000,Look=None")));
}

TEST_F(ViewportSettings, ClientsThatAreNoPanesAreLeftAlone)
{
	Driver.Start(Options);
	TakeTrace();
	const FLevelEditorViewportClient WithoutWidget(nullptr);
	EXPECT_EQ(DisplayRecords().GetDisplayConfiguration(&WithoutWidget), nullptr);
	const FEditorViewportClient OfAnAssetEditor{TWeakPtr<SEditorViewport>()};
	EXPECT_EQ(DisplayRecords().GetDisplayConfiguration(&OfAnAssetEditor), nullptr);
	EXPECT_EQ(TakeSaves(), 0);
}

TEST_F(ViewportSettings, BadFilesLoseNothingThatCanBeRead)
{
	WriteFile(
		";METADATA=(Diff=true, UseCommands=true)\r\n[/Script/Other.Settings]\r\nKept=1\r\n+Kept=2\r\n\r\n" +
		std::string(Section) +
		Pair(KeyA, std::string("bDisplay=True,Strange=(A=1,B=\")\"),Weight=0.500000,Look=") + WarmText) +
		Pair(KeyA, "bDisplay=False") +
		Pair(KeyB, "Weight=nonsense,Look=\"/Script/Tonalith.TonalithObject'/Game/Gone.Gone'\"") +
		"ViewportsSettings=nonsense\r\n+ViewportsSettings=(ViewportIdentifier=\"Ignored\")\r\nOther=kept\r\n\r\n");
	Driver.Start(Options);
	Driver.OpenPane(PaneA);
	EXPECT_TRUE(Record(PaneA).bDisplay) << "the first of two";
	EXPECT_EQ(Record(PaneA).Weight, 0.5f);
	EXPECT_EQ(Record(PaneA).Look.Get(), Warm());
	Driver.OpenPane(PaneB);
	EXPECT_EQ(Record(PaneB).Weight, 1.0f);
	EXPECT_EQ(Record(PaneB).Look.Get(), nullptr);

	Record(PaneA).Weight = 0.25f;
	Driver.ClosePane(PaneA);
	EXPECT_EQ(ReadFile(),
		";METADATA=(Diff=true, UseCommands=true)\r\n[/Script/Other.Settings]\r\nKept=1\r\n+Kept=2\r\n\r\n" +
			std::string(Section) + Pair(KeyA, std::string("bDisplay=True,Weight=0.250000,Look=") + WarmText) +
			Pair(KeyA, "bDisplay=False,Weight=1.000000,Look=None") + Pair(KeyB, Default) + Pair("", Default) +
			"+ViewportsSettings=(ViewportIdentifier=\"Ignored\")\r\nOther=kept\r\n\r\n");
}

TEST_F(ViewportSettings, TypesAreAsTheEngineShowsThem)
{
	Driver.Start(Options);
	const auto Find = [](UClass* Class, const TCHAR* Path)
	{ return static_cast<UStruct*>(StaticFindObject(Class, Path)); };
	const UClass* Class =
		static_cast<UClass*>(Find(UClass::StaticClass(), TEXT("/Script/TonalithEditor.TonalithLevelViewportSettings")));
	ASSERT_NE(Class, nullptr);
	EXPECT_EQ(Class->GetSuperClass(), UObject::StaticClass());
	EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_Config));
	EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_Native));
	EXPECT_FALSE(Class->HasAnyClassFlags(CLASS_DefaultConfig));
	EXPECT_EQ(Class->ClassConfigName, FName("EditorPerProjectUserSettings"));
	const UStruct* Pair =
		Find(UScriptStruct::StaticClass(), TEXT("/Script/TonalithEditor.TNLPerViewportDisplaySettingPair"));
	ASSERT_NE(Pair, nullptr);

	const struct
	{
		const UStruct* Owner;
		const TCHAR* Name;
		const TCHAR* Type;
		uint64 Access;
		const TCHAR* ToolTip;
	} Rows[] = {
		{Class, TEXT("ViewportsSettings"), TEXT("TArray<FTNLPerViewportDisplaySettingPair>"),
			CPF_NativeAccessSpecifierProtected, TEXT("Settings associated to each viewport that was configured")},
		{Pair, TEXT("ViewportIdentifier"), TEXT("FName"), CPF_NativeAccessSpecifierPublic,
			TEXT("Name associated with this viewport's layout to identify it.")},
		{Pair, TEXT("DisplayConfiguration"), TEXT("FTonalithDisplayConfiguration"), CPF_NativeAccessSpecifierPublic,
			TEXT("Display configuration for a given viewport")},
	};
	for (const auto& Row : Rows)
	{
		const FProperty* Property = Row.Owner->FindPropertyByName(Row.Name);
		ASSERT_NE(Property, nullptr);
		EXPECT_TRUE(Property->GetCPPType().Equals(Row.Type));
		EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_Config));
		EXPECT_TRUE(Property->HasAnyPropertyFlags(Row.Access));
		EXPECT_TRUE(Property->GetMetaData("ToolTip").Equals(Row.ToolTip));
	}
	EXPECT_EQ(Pair->GetOwnProperties()[0]->GetFName(), FName("ViewportIdentifier"));
	EXPECT_TRUE(Class->GetMetaData("ToolTip").Equals(
		TEXT("List of Tonalith objects associated to level viewport instances linked with an identifier")));
}
