// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The windows of looks, used as a user would.
#include "LookColors.h"
#include "LookTest.h"
#include "TonalithImageDesc.h"
#include "UObject/Package.h"

#include <limits>

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

namespace
{
FTonalithAPI_ImageDesc Described(const uint8* Pixels, int32 Width, int32 Height, int32 RowLength)
{
	return {1, Pixels, Width, Height, RowLength, 1.0f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0};
}

} // namespace

class LookWindow : public FLookTest
{
};

TEST_F(LookWindow, EditsShowRightOfTheLineAndInEveryPaneAndAreSaved)
{
	using FChannel = LookColor::FChannelGrading;
	StartWithPanes();
	const FPicture Plain = Driver.TakePicture();
	Record(PaneA) = Configured(true, 1.0f, Warm());
	Driver.OpenAssets({WarmPath, ColdPath});
	const struct
	{
		const TCHAR* Name;
		double FChannel::*Member;
		std::array<double, 3> Colors;
		double All;
	} Controls[] = {{TEXT("Saturation"), &FChannel::Saturation, {0.5, 1, 1.5}, 0.9},
		{TEXT("Contrast"), &FChannel::Contrast, {1, 1.5, 2}, 0.5}, {TEXT("Gamma"), &FChannel::Gamma, {1, 2, 0.5}, 0.9},
		{TEXT("Gain"), &FChannel::Gain, {0.5, 1, 2}, 0.5}, {TEXT("Offset"), &FChannel::Offset, {0.1, 0, -0.1}, 0.05}};
	for (const auto& [Name, Member, Colors, All] : Controls)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Name));
		LookColor::FGrading Grading;
		for (size_t Channel = 0; Channel < 3; ++Channel)
		{
			Grading[Channel].*Member = Member == &FChannel::Offset ? Colors[Channel] + All : Colors[Channel] * All;
		}
		Driver.Windows();
		TakeTrace();
		Driver.Windows().EditProperty(
			TEXT("Warm"), Name, FString::Printf(TEXT("(X=%f,Y=%f,Z=%f,W=%f)"), Colors[0], Colors[1], Colors[2], All));
		const FPicture Graded = Driver.Windows().Picture(TEXT("Warm"));
		EXPECT_THAT(
			TakeTrace(), ElementsAre(StartsWith("draw viewport"), StartsWith("draw viewport"), "create texture"));
		EXPECT_LE(WorstStep(Graded, Plain, [&](const FColor3& Color) { return controlled(Grading, Color); }), 0.51);
		EXPECT_LE(WorstStep(Driver.TakePicture(), Graded), 1.0);

		FPicture Half = Graded;
		for (int32 At = 0; At < Half.Pixels.Num(); ++At)
		{
			const bool bIsLeft = At % PaneSize.X < PaneSize.X / 2;
			Half.Pixels[At] = bIsLeft ? Plain.Pixels[At] : Half.Pixels[At];
		}
		Driver.Windows().MoveSlider(TEXT("Warm"), 0.5f);
		EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Warm")), Half));
		Driver.Windows().MoveSlider(TEXT("Warm"), 1.0f);
		EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Warm")), Plain));
		Driver.Windows().MoveSlider(TEXT("Warm"), 0.0f);
		EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Warm")), Graded));
		Driver.Windows().UndoEdit(TEXT("Warm"), Name);
		EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Plain));
		EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Warm")), Plain));
	}
	EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Cold")), Plain));
	EXPECT_THROW(Driver.Windows().EditProperty(TEXT("Warm"), TEXT("Window"), TEXT("1")), FDriverError);
	Driver.Quit();
	EXPECT_THAT(TakeTrace(), AllOf(Contains("close window Warm"), Contains("save asset /Game/Looks/Warm.Warm"),
								 Not(Contains("save asset /Game/Looks/Cold.Cold"))));
}

TEST_F(LookWindow, DrawsOncePerFrameAndNothingForALookOrAWindowThatIsGone)
{
	StartWithPanes();
	Driver.OpenAssets({WarmPath, ColdPath});
	const FWindowDriver& Windows = Driver.Windows();
	TakeTrace();
	for (int32 Edit = 1; Edit <= 1000; ++Edit)
	{
		Windows.EditProperty(TEXT("Warm"), TEXT("Gain"), FString::Printf(TEXT("(X=1,Y=1,Z=1,W=%f)"), Edit / 500.0));
	}
	Driver.Windows();
	EXPECT_THAT(TakeTrace(), ElementsAre(StartsWith("draw viewport"), StartsWith("draw viewport"), "create texture"));
	Driver.Windows();
	EXPECT_THAT(TakeTrace(), ElementsAre()) << "nothing has changed";

	Windows.MoveSlider(TEXT("Warm"), 0.5f);
	Windows.Close(TEXT("Warm"));
	Windows.MoveSlider(TEXT("Cold"), 0.5f);
	HostAssets::Delete(*Cold());
	Driver.Windows();
	EXPECT_THAT(TakeTrace(), ElementsAre("close window Warm"));
}

TEST_F(LookWindow, TakesFramesOfAllShapesAndRefusesWhatItCannotShow)
{
	using FImage = FTonalithAPI_ImageDesc;
	constexpr int32 Longest = FImage::LongestSide;
	const std::vector<uint8> Gray(8 * (Longest + 1), 128);
	Driver.Start(Options);
	FImage Good = Described(Gray.data(), 1, 2, Longest + 1);
	const auto Refuse = [&](auto Value, auto... Members)
	{
		for (const auto Member : {Members...})
		{
			FImage Bad = Good;
			Bad.*Member = Value;
			Cold()->DisplayUserInterface(Bad);
			EXPECT_THAT(
				TakeLog("LogTemp"), ElementsAre("Warning: DisplayUserInterface: the picture for Cold is refused"));
		}
	};
	Refuse(2, &FImage::Version);
	Refuse(nullptr, &FImage::Pixels);
	Refuse(0, &FImage::Width, &FImage::Height, &FImage::RowLength);
	Refuse(-1, &FImage::Width, &FImage::Height, &FImage::RowLength);
	Refuse(Longest + 1, &FImage::Width, &FImage::Height);
	Refuse(0.99f, &FImage::ValueScale, &FImage::ExposureScale, &FImage::Maximum);
	Refuse(0.01f, &FImage::ValueOffset, &FImage::ExposureOffset, &FImage::Minimum);
	Refuse(std::numeric_limits<float>::quiet_NaN(), &FImage::ValueOffset, &FImage::ExposureOffset, &FImage::Minimum);
	EXPECT_TRUE(Driver.Windows().Titles().IsEmpty());

	for (const FIntPoint Size : {FIntPoint(1, 1), FIntPoint(1, 5), FIntPoint(Longest, 1), FIntPoint(1, Longest)})
	{
		FImage Image = Described(Gray.data(), Size.X, Size.Y, Size.X);
		Cold()->DisplayUserInterface(Image);
		EXPECT_EQ(Driver.Windows().Picture(TEXT("Cold")).Size, Size);
	}
	// What lies between the rows is not shown; alpha stays.
	const uint8 Pixels[] = {1, 2, 3, 4, 0, 0, 0, 0, 5, 6, 7, 255};
	FImage Image = Described(Pixels, 1, 2, 2);
	Cold()->DisplayUserInterface(Image);
	EXPECT_EQ(
		Driver.Windows().Picture(TEXT("Cold")).Pixels, TArray<FColor>({FColor(1, 2, 3, 4), FColor(5, 6, 7, 255)}));
	Cold()->Gain.W = 0;
	Cold()->DisplayUserInterface(Image);
	EXPECT_EQ(
		Driver.Windows().Picture(TEXT("Cold")).Pixels, TArray<FColor>({FColor(0, 0, 0, 4), FColor(0, 0, 0, 255)}));
}

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
	EXPECT_EQ(Driver.Windows().Titles(), TArray<FString>({TEXT("Cold")}));
	Driver.OpenAssets({WarmPath});
	EXPECT_EQ(Driver.Windows().Titles(), TArray<FString>({TEXT("Cold"), TEXT("Warm")}));
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
	EXPECT_EQ(Driver.Windows().Titles(), TArray<FString>({TEXT(""), TEXT("Cold")}));
	CollectGarbage();
	EXPECT_EQ(Driver.Windows().Titles(), TArray<FString>({TEXT("Cold")}));
	EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Picture));
	Driver.ClosePane(PaneB);
}

TEST_F(LookWindow, NeedsAUserInterface)
{
	Options.bIsCommandlet = true;
	Driver.Start(Options);
	EXPECT_THAT(TakeTrace(), Not(Contains("register view extension")));
	const uint8 Pixels[4] = {};
	FTonalithAPI_ImageDesc Image = Described(Pixels, 1, 1, 1);
	Warm()->DisplayUserInterface(Image);
}
