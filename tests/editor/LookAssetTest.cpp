// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks as assets: their type, their factory, and what opening one does to the active viewport.
#include "AssetToolsModule.h"
#include "Editor.h"
#include "Factories/Factory.h"
#include "Host/ContentBrowser.h"
#include "ImportOverride.h"
#include "LookTest.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "TonalithImageDesc.h"

#include <filesystem>
#include <limits>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;

namespace
{
/** A viewport whose read-back is in the hands of the test. */
class FFaultyViewport : public FSceneViewport
{
public:
	FFaultyViewport(FViewportClient* Client, int32 InPixelCount, bool bInSucceeds)
		: FSceneViewport(Client), PixelCount(InPixelCount), bSucceeds(bInSucceeds)
	{
	}

	bool ReadPixels(TArray<FColor>& OutImageData, FReadSurfaceDataFlags, FIntRect) override
	{
		OutImageData.SetNumUninitialized(PixelCount);
		return bSucceeds;
	}

private:
	int32 PixelCount;
	bool bSucceeds;
};
} // namespace

class LookAsset : public FLookTest
{
protected:
	void StartWithPane()
	{
		Driver.Start(Options);
		Driver.OpenPane(PaneA);
		Record(PaneA).bDisplay = true;
		TakeTrace();
		TakeLog("LogTemp");
	}

	static TSharedPtr<IAssetTypeActions> Actions()
	{
		return FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools")
			.Get()
			.GetAssetTypeActionsForClass(UTonalithObject::StaticClass())
			.Pin();
	}

	static UFactory* Factory()
	{
		UClass* Class = static_cast<UClass*>(
			StaticFindObject(UClass::StaticClass(), TEXT("/Script/TonalithEditor.TonalithObjectFactoryNew")));
		return Class ? static_cast<UFactory*>(Class->GetDefaultObject()) : nullptr;
	}

	/** Puts the string file of a language where this session looks for it. */
	void InstallStrings(const char* Locale) const
	{
		const std::filesystem::path Folder =
			std::filesystem::path(*Options.ProjectFolder) / "ProgramData/Vantor/com.vantor.look/translations/unreal";
		const std::string File = std::string("table_") + Locale + ".json";
		std::filesystem::create_directories(Folder);
		std::filesystem::copy(std::filesystem::path(TONALITH_TRANSLATIONS) / File, Folder / File);
	}
};

TEST_F(LookAsset, TypeIsDescribedInTheEditorsLanguage)
{
	InstallStrings("de");
	Options.Culture = TEXT("de-AT");
	Driver.Start(Options);
	ASSERT_TRUE(Actions().IsValid());
	EXPECT_STREQ(*Actions()->GetName().ToString(), TEXT("Tonalith-Look"));
	EXPECT_EQ(Actions()->GetSupportedClass(), UTonalithObject::StaticClass());
	EXPECT_EQ(Actions()->GetTypeColor(), FColor(255, 255, 255, 255));
	EXPECT_EQ(Actions()->GetCategories(), 64u);
	const FText Description = Actions()->GetAssetDescription(FAssetData(Warm()));
	EXPECT_STREQ(*Description.ToString(), TEXT("Ein Farblook, den die Level-Ansichtsfenster zeigen können."));
	EXPECT_TRUE(Description.EqualTo(Actions()->GetAssetDescription(FAssetData())));
	Driver.Quit();
}

TEST_F(LookAsset, FactoryMakesLooksOfTheGivenClassOnly)
{
	Driver.Start(Options);
	ASSERT_NE(Factory(), nullptr);
	EXPECT_EQ(Factory()->SupportedClass, UTonalithObject::StaticClass());
	EXPECT_TRUE(Factory()->CanCreateNew());
	EXPECT_TRUE(Factory()->bEditAfterNew);
	EXPECT_TRUE(Factory()->ShouldShowInNewMenu());
	EXPECT_STREQ(
		*Factory()->GetClass()->GetMetaData("ToolTip"), TEXT("Implements a factory for UTonalithObject objects."));

	UPackage* Package = CreatePackage(TEXT("/Game/Looks/New"));
	UObject* Made = Factory()->FactoryCreateNew(
		UTonalithObject::StaticClass(), Package, "New", RF_Public | RF_Transactional, nullptr, nullptr, NAME_None);
	ASSERT_NE(Made, nullptr);
	EXPECT_STREQ(*Made->GetPathName(), TEXT("/Game/Looks/New.New"));
	EXPECT_EQ(Made->GetClass(), UTonalithObject::StaticClass());
	EXPECT_TRUE(Made->HasAnyFlags(RF_Public) && Made->HasAnyFlags(RF_Transactional));
	EXPECT_FALSE(Made->HasAnyFlags(RF_Standalone));
	EXPECT_EXIT(Factory()->FactoryCreateNew(UPackage::StaticClass(), Package, "X", RF_NoFlags, nullptr, nullptr),
		ExitedWithCode(3), HasSubstr("which is no child of /Script/Tonalith.TonalithObject"));
	Driver.Quit();
}

TEST_F(LookAsset, OpenedTogetherEachGetsAFrameWithoutTheLook)
{
	StartWithPane();
	for (const FIntPoint Size : {FIntPoint(641, 359), FIntPoint(1, 1), FIntPoint(7, 480)})
	{
		Driver.ResizePane(PaneA, Size);
		Record(PaneA).bDisplay = true;
		TakeTrace();
		Driver.OpenAssets({WarmPath, ColdPath});
		EXPECT_THAT(TakeTrace(), testing::IsSupersetOf({"read pixels", "read pixels"}));
		EXPECT_TRUE(Record(PaneA).bDisplay);

		const FPicture Chart = Driver.TakePicture();
		ASSERT_EQ(Chart.Size, Size);
		for (const TCHAR* Shown : {TEXT("Warm"), TEXT("Cold")})
		{
			const FPicture Frame = Driver.Windows().Picture(Shown);
			ASSERT_TRUE(IsSamePicture(Frame, Chart));
			for (const FColor& Pixel : Frame.Pixels)
			{
				ASSERT_EQ(Pixel.A, 255);
			}
		}
	}
	Driver.Quit();
}

TEST_F(LookAsset, TheFlagIsOffFromTheDrawToTheLastLookAndThenAsBefore)
{
	StartWithPane();
	struct FRecordingClient : FViewportClient
	{
		void Draw(FViewport*, FCanvas*) override
		{
			Shown.push_back(DisplayRecords().GetDisplayConfiguration(this)->bDisplay);
		}

		std::vector<bool> Shown;
	} Client;
	const TSharedRef<FSceneViewport> Viewport = MakeShared<FSceneViewport>(&Client);
	Driver.Pane(PaneA).StartPlayInEditorSession(Viewport);
	FTonalithDisplayConfiguration& Shown = DisplayRecords().FindOrAddDisplayConfiguration(&Client);
	Shown = Configured(true, 0.25f, Warm());

	std::vector<UTonalithObject*> Opened;
	FTonalithAPI_ImageDesc Image;
	const ImportOverride window(
		"_ZN15UTonalithObject20DisplayUserInterfaceER22FTonalithAPI_ImageDesc",
		static_cast<void (*)(UTonalithObject*, FTonalithAPI_ImageDesc&)>(nullptr),
		[&](UTonalithObject* Look, FTonalithAPI_ImageDesc& Given)
		{
			EXPECT_FALSE(Shown.bDisplay);
			EXPECT_EQ(Given.Pixels[3], 255);
			Opened.push_back(Look);
			Image = Given;
		},
		EditorLibrary());
	for (const bool bDisplay : {true, false})
	{
		Shown.bDisplay = bDisplay;
		Actions()->OpenAssetEditor({nullptr, Cold(), Warm()->GetPackage(), Warm()}, nullptr);
		EXPECT_EQ(Shown.bDisplay, bDisplay);
	}
	EXPECT_EQ(Client.Shown, std::vector<bool>({false, false}));
	EXPECT_EQ(Opened, std::vector<UTonalithObject*>({Cold(), Warm(), Cold(), Warm()}));
	EXPECT_EQ(Shown.Weight, 0.25f);
	EXPECT_EQ(Shown.Look, Warm());

	EXPECT_EQ(Image.Version, 1);
	EXPECT_EQ(Image.Width, 320);
	EXPECT_EQ(Image.Height, 180);
	EXPECT_EQ(Image.RowLength, 320);
	EXPECT_EQ(Image.ValueScale, 1.0f);
	EXPECT_EQ(Image.ValueOffset, 0.0f);
	EXPECT_EQ(Image.ExposureScale, 1.0f);
	EXPECT_EQ(Image.ExposureOffset, 0.0f);
	EXPECT_EQ(Image.Minimum, -1000.0f);
	EXPECT_EQ(Image.Maximum, 1000.0f);
	EXPECT_EQ(Image.Time, 0.0f);
	EXPECT_EQ(Image.Flags, 0);
	Driver.Pane(PaneA).EndPlayInEditorSession();
	Driver.Quit();
}

TEST_F(LookAsset, AFrameThatCannotBeReadOpensNothingAndSaysSo)
{
	StartWithPane();
	FViewportClient* Client = &Driver.Pane(PaneA).GetLevelViewportClient();
	const auto Refuse = [&](const TSharedRef<FSceneViewport>& Viewport)
	{
		Driver.Pane(PaneA).StartPlayInEditorSession(Viewport);
		Driver.OpenAssets({WarmPath, ColdPath});
		EXPECT_THAT(TakeLog("LogTemp"),
			ElementsAre("Warning: OpenAssetEditor: Warm is not opened, the viewport's pixels cannot be read",
				"Warning: OpenAssetEditor: Cold is not opened, the viewport's pixels cannot be read"));
		EXPECT_TRUE(Driver.Windows().Titles().IsEmpty());
		EXPECT_TRUE(Record(PaneA).bDisplay);
		Driver.Pane(PaneA).EndPlayInEditorSession();
	};
	Refuse(MakeShared<FFaultyViewport>(Client, 0, false));
	Refuse(MakeShared<FFaultyViewport>(Client, 320 * 180, false));
	Refuse(MakeShared<FFaultyViewport>(Client, 320 * 180 - 1, true));
	const TSharedRef<FSceneViewport> Empty = MakeShared<FSceneViewport>(Client);
	Empty->SetFixedViewportSize(0, 0);
	Refuse(Empty);
	Driver.Quit();
}

TEST_F(LookAsset, OpeningWithoutAPaneIsFatal)
{
	EXPECT_EXIT(
		{
			Driver.Start(Options);
			Driver.OpenAssets({WarmPath});
		},
		ExitedWithCode(3), HasSubstr("Assertion failed: CurrentViewport "));
}

TEST_F(LookAsset, AContradictoryPictureIsRefused)
{
	Driver.Start(Options);
	const uint8 Pixels[] = {1, 2, 3, 4, 0, 0, 0, 0, 5, 6, 7, 8};
	FTonalithAPI_ImageDesc Good;
	Good.Pixels = Pixels;
	Good.Width = 1;
	Good.Height = Good.RowLength = 2;
	const auto Refused = [&](auto Member, auto Value)
	{
		FTonalithAPI_ImageDesc Bad = Good;
		Bad.*Member = Value;
		Cold()->DisplayUserInterface(Bad);
		EXPECT_THAT(TakeLog("LogTemp"), ElementsAre("Warning: DisplayUserInterface: the picture for Cold is refused"));
	};
	Refused(&FTonalithAPI_ImageDesc::Version, 2);
	Refused(&FTonalithAPI_ImageDesc::Pixels, nullptr);
	Refused(&FTonalithAPI_ImageDesc::Width, 0);
	Refused(&FTonalithAPI_ImageDesc::Width, 3);
	Refused(&FTonalithAPI_ImageDesc::Height, -1);
	Refused(&FTonalithAPI_ImageDesc::Height, std::numeric_limits<int32>::max());
	EXPECT_TRUE(Driver.Windows().Titles().IsEmpty());
	// What lies between the rows is not shown.
	Cold()->DisplayUserInterface(Good);
	const FPicture Shown = Driver.Windows().Picture(TEXT("Cold"));
	EXPECT_EQ(Shown.Size, FIntPoint(1, 2));
	EXPECT_EQ(Shown.Pixels, TArray<FColor>({FColor(1, 2, 3, 4), FColor(5, 6, 7, 8)}));
	Driver.Quit();
}
