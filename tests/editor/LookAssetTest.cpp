// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks as assets: their type, their factory, and what opening one does to the active viewport.
#include "AssetToolsModule.h"
#include "Editor.h"
#include "Factories/Factory.h"
#include "ImportOverride.h"
#include "LookTest.h"
#include "TonalithImageDesc.h"

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;

namespace
{
/** A viewport whose read-back is in the hands of the test. */
struct FFaultyViewport : FSceneViewport
{
	using FSceneViewport::FSceneViewport;

	bool ReadPixels(TArray<FColor>& OutImageData, FReadSurfaceDataFlags, FIntRect) override
	{
		OutImageData.SetNumUninitialized(PixelCount);
		return bSucceeds;
	}

	int32 PixelCount = 0;
	bool bSucceeds = false;
};

/** All fields but the pixels. */
auto Fields(const FTonalithAPI_ImageDesc& Image)
{
	return std::tuple(Image.Version, Image.Width, Image.Height, Image.RowLength, Image.ValueScale, Image.ValueOffset,
		Image.ExposureScale, Image.ExposureOffset, Image.Minimum, Image.Maximum, Image.Time, Image.Flags);
}
} // namespace

class LookAsset : public FLookTest
{
protected:
	static TSharedPtr<IAssetTypeActions> Actions()
	{
		return FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools")
			.Get()
			.GetAssetTypeActionsForClass(UTonalithObject::StaticClass())
			.Pin();
	}
};

TEST_F(LookAsset, TypeIsDescribedAndItsFactoryMakesLooksOnly)
{
	Driver.Start(Options);
	EXPECT_EQ(Actions()->GetTypeColor(), FColor(255, 255, 255, 255));
	for (const FAssetData& Asset : {FAssetData(Warm()), FAssetData()})
	{
		EXPECT_STREQ(*Actions()->GetAssetDescription(Asset).ToString(),
			TEXT("AssetTypeActions_TonalithObject.AssetTypeActions_TonalithObject_Description"));
	}
	UClass* Class = static_cast<UClass*>(
		StaticFindObject(UClass::StaticClass(), TEXT("/Script/TonalithEditor.TonalithObjectFactoryNew")));
	ASSERT_NE(Class, nullptr);
	UFactory& Factory = *static_cast<UFactory*>(Class->GetDefaultObject());
	EXPECT_EQ(Factory.SupportedClass, UTonalithObject::StaticClass());
	EXPECT_TRUE(Factory.bEditAfterNew);

	UPackage* Package = CreatePackage(TEXT("/Game/Looks/New"));
	UObject* Made = Factory.FactoryCreateNew(
		UTonalithObject::StaticClass(), Package, "New", RF_Public | RF_Transactional, nullptr, nullptr, NAME_None);
	ASSERT_NE(Made, nullptr);
	EXPECT_STREQ(*Made->GetPathName(), TEXT("/Game/Looks/New.New"));
	EXPECT_TRUE(Made->HasAnyFlags(RF_Public) && Made->HasAnyFlags(RF_Transactional));
	EXPECT_FALSE(Made->HasAnyFlags(RF_Standalone));
	EXPECT_EXIT(Factory.FactoryCreateNew(UPackage::StaticClass(), Package, "X", RF_NoFlags, nullptr, nullptr),
		ExitedWithCode(3), HasSubstr("which is no child of /Script/Tonalith.TonalithObject"));
}

TEST_F(LookAsset, OpenedTogetherEachGetsAFrameWithoutTheLook)
{
	StartWithPanes();
	Warm()->Offset = FVector4(0.25, 0, 0, 0);
	for (const FIntPoint Size : {FIntPoint(641, 359), FIntPoint(1, 1), FIntPoint(7, 480)})
	{
		Driver.ResizePane(PaneA, Size);
		Record(PaneA) = Configured(false, 1.0f, Warm());
		const FPicture Plain = Driver.TakePicture();
		Record(PaneA).bDisplay = true;
		Driver.OpenAssets({WarmPath, ColdPath});
		for (const TCHAR* Opened : {TEXT("Warm"), TEXT("Cold")})
		{
			Driver.Windows().MoveSlider(Opened, 1.0f);
			const FPicture Frame = Driver.Windows().Picture(Opened);
			ASSERT_EQ(Frame.Size, Size);
			ASSERT_TRUE(IsSamePicture(Frame, Plain));
			ASSERT_FALSE(Frame.Pixels.ContainsByPredicate([](const FColor& Pixel) { return Pixel.A != 255; }));
		}
		EXPECT_FALSE(IsSamePicture(Driver.TakePicture(), Plain)) << "its next frame shows the look again";
	}
}

TEST_F(LookAsset, TheFlagIsOffFromTheDrawToTheLastLookAndThenAsBefore)
{
	StartWithPanes();
	FLines Steps;
	FTonalithAPI_ImageDesc Image;
	const auto Note = [&](const std::string& Step) { Steps.push_back(Step + ", " + Shown(PaneA)); };
	const ImportOverride window(
		"_ZN15UTonalithObject20DisplayUserInterfaceER22FTonalithAPI_ImageDesc",
		static_cast<void (*)(UTonalithObject*, FTonalithAPI_ImageDesc&)>(nullptr),
		[&](UTonalithObject* Look, FTonalithAPI_ImageDesc& Given)
		{
			Note(TCHAR_TO_UTF8(*Look->GetName()));
			Image = Given;
		},
		EditorLibrary());
	const ImportOverride drawing(
		"_ZN9FViewport4DrawEb", static_cast<void (*)(FViewport*, bool)>(nullptr),
		[&](FViewport* Viewport, bool bPresent)
		{
			Note(bPresent ? "drawn" : "drawn, not presented");
			Viewport->Draw(bPresent);
		},
		EditorLibrary());
	for (const bool bDisplay : {true, false})
	{
		Record(PaneA) = Configured(bDisplay, 0.25f, Warm());
		Actions()->OpenAssetEditor({nullptr, Cold(), Warm()->GetPackage(), Warm()}, nullptr);
		Note("done");
		EXPECT_THAT(Steps, ElementsAre("drawn, off 0.25 Warm", "Cold, off 0.25 Warm", "Warm, off 0.25 Warm",
							   bDisplay ? "done, on 0.25 Warm" : "done, off 0.25 Warm"));
		Steps.clear();
	}
	FTonalithAPI_ImageDesc Sent{1, nullptr, 16, 8, 16, 1.0f, 0.0f, 1.0f, 0.0f, -1000.0f, 1000.0f, 0.0f, 0};
	EXPECT_EQ(Fields(Image), Fields(Sent));
}

TEST_F(LookAsset, AFrameThatCannotBeReadOpensNothingAndSaysSo)
{
	StartWithPanes();
	const TSharedRef<FFaultyViewport> Viewport =
		MakeShared<FFaultyViewport>(&Driver.Pane(PaneA).GetLevelViewportClient());
	Driver.Pane(PaneA).StartPlayInEditorSession(Viewport);
	Record(PaneA).bDisplay = true;
	constexpr int32 All = 320 * 180;
	for (const auto& [bSucceeds, PixelCount] : {std::pair(false, 0), {false, All}, {true, All - 1}})
	{
		Viewport->bSucceeds = bSucceeds;
		Viewport->PixelCount = PixelCount;
		Driver.OpenAssets({WarmPath, ColdPath});
		EXPECT_THAT(TakeLog("LogTemp"),
			ElementsAre("Warning: OpenAssetEditor: Warm is not opened, the viewport's pixels cannot be read",
				"Warning: OpenAssetEditor: Cold is not opened, the viewport's pixels cannot be read"));
		EXPECT_TRUE(Driver.Windows().Titles().IsEmpty());
		EXPECT_EQ(Shown(PaneA), "on 1 no look");
	}
	Driver.Pane(PaneA).EndPlayInEditorSession();
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
