// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The windows of looks, used as a user would.
#include "LookTest.h"
#include "TonalithImageDesc.h"
#include "UObject/Package.h"

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

class LookWindow : public FLookTest
{
protected:
	std::string Titles()
	{
		FString Titles;
		for (const FString& Title : Driver.Windows().Titles())
		{
			Titles += TEXT("|") + Title;
		}
		return TCHAR_TO_UTF8(*Titles);
	}
};

TEST_F(LookWindow, IsOneForEachLookAndComesToTheFrontWithTheNewPicture)
{
	StartWithPanes();
	Driver.OpenAssets({WarmPath, ColdPath});
	EXPECT_THAT(TakeTrace(),
		ElementsAre(StartsWith("draw viewport"), "read pixels", "open window Warm", "bring window Warm to front",
			"read pixels", "open window Cold", "bring window Cold to front"));
	const FPicture Before = Driver.Windows().Picture(TEXT("Warm"));

	Driver.ResizePane(PaneA, FIntPoint(9, 5));
	TakeTrace();
	Driver.OpenAssets({WarmPath});
	EXPECT_THAT(TakeTrace(), ElementsAre(StartsWith("draw viewport"), "read pixels", "bring window Warm to front"));
	EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Warm")), Driver.TakePicture()));
	EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Cold")), Before)) << "the other one keeps its own";

	Driver.Windows().Close(TEXT("Warm"));
	EXPECT_EQ(Titles(), "|Cold");
	Driver.OpenAssets({WarmPath});
	EXPECT_EQ(Titles(), "|Cold|Warm");
}

TEST_F(LookWindow, EditsShowInEveryViewportAndAreSaved)
{
	StartWithPanes();
	const FPicture Plain = Driver.TakePicture();
	Record(PaneA) = Configured(true, 1.0f, Warm());
	Driver.OpenAssets({WarmPath});
	EXPECT_FALSE(Warm()->GetPackage()->IsDirty());
	for (const TCHAR* Control : {TEXT("Saturation"), TEXT("Contrast"), TEXT("Gamma"), TEXT("Gain"), TEXT("Offset")})
	{
		const FString Neutral =
			FString(Control).Equals(TEXT("Offset")) ? TEXT("(X=0,Y=0,Z=0,W=0)") : TEXT("(X=1,Y=1,Z=1,W=1)");
		for (const FString& Value : {FString(TEXT("(X=0.5,Y=0.5,Z=1.0,W=0.75)")), Neutral})
		{
			TakeTrace();
			Driver.Windows().EditProperty(TEXT("Warm"), Control, Value);
			Driver.Windows();
			EXPECT_THAT(TakeTrace(), ElementsAre(StartsWith("draw viewport"), StartsWith("draw viewport")));
			EXPECT_EQ(IsSamePicture(Driver.TakePicture(), Plain), Value == Neutral);
		}
	}
	EXPECT_THROW(Driver.Windows().EditProperty(TEXT("Warm"), TEXT("Window"), TEXT("1")), FDriverError);
	Driver.Quit();
	EXPECT_THAT(TakeTrace(), AllOf(Contains("close window Warm"), Contains("save asset /Game/Looks/Warm.Warm"),
								 Not(Contains("save asset /Game/Looks/Cold.Cold"))));
}

TEST_F(LookWindow, ClosesWithItsLookAndOutlivesThePane)
{
	StartWithPanes();
	Record(PaneA) = Record(PaneB) = Configured(true, 1.0f, Warm());
	Driver.OpenAssets({WarmPath, ColdPath});
	const FPicture Picture = Driver.Windows().Picture(TEXT("Warm"));
	Driver.ClosePane(PaneA);
	EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Warm")), Picture));
	Driver.Windows().EditProperty(TEXT("Warm"), TEXT("Gain"), TEXT("(X=0.5,Y=1,Z=1,W=1)"));
	EXPECT_FALSE(IsSamePicture(Driver.TakePicture(), Picture));

	HostAssets::Delete(*Warm());
	EXPECT_EQ(Titles(), "||Cold");
	CollectGarbage();
	EXPECT_EQ(Titles(), "|Cold");
	EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Picture));
	Driver.ClosePane(PaneB);
}

TEST_F(LookWindow, NeedsAUserInterface)
{
	Options.bIsCommandlet = true;
	Driver.Start(Options);
	EXPECT_THAT(TakeTrace(), Not(Contains("register view extension")));
	const uint8 Pixel[4] = {};
	FTonalithAPI_ImageDesc Image{.Version = 1, .Pixels = Pixel, .Width = 1, .Height = 1, .RowLength = 1};
	Image.ValueScale = Image.ExposureScale = Image.Maximum = 1.0f;
	Warm()->DisplayUserInterface(Image);
}
