// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The windows of looks, used as a user would.
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
/** Black, a gray, a brown and white, and a row's end that is not part of the frame. */
constexpr uint8 FourPixels[] = {0, 0, 0, 9, 128, 128, 128, 0, 200, 100, 50, 255, 255, 255, 255, 99, 1, 2, 3, 4};

FTonalithAPI_ImageDesc Described(const uint8* Pixels, int32 Width, int32 Height, int32 RowLength)
{
	FTonalithAPI_ImageDesc Image{
		.Version = 1, .Pixels = Pixels, .Width = Width, .Height = Height, .RowLength = RowLength};
	Image.ValueScale = Image.ExposureScale = Image.Maximum = 1.0f;
	return Image;
}

/** A row of pixels as "RRGGBB:alpha", each with a blank behind it. */
std::string Text(const FPicture& Picture)
{
	std::string Text;
	for (const FColor& Pixel : Picture.Pixels)
	{
		char Hex[16];
		std::snprintf(Hex, sizeof Hex, "%02X%02X%02X:%d ", Pixel.R, Pixel.G, Pixel.B, Pixel.A);
		Text += Hex;
	}
	return Text;
}

FPicture FromText(const std::string& Text)
{
	FPicture Picture;
	std::istringstream Stream(Text);
	for (std::string Pixel; Stream >> Pixel;)
	{
		const uint32 Hex = static_cast<uint32>(std::stoul(Pixel, nullptr, 16));
		Picture.Pixels.Add(FColor(static_cast<uint8>(Hex >> 16), static_cast<uint8>(Hex >> 8), static_cast<uint8>(Hex),
			static_cast<uint8>(std::stoi(Pixel.substr(7)))));
	}
	Picture.Size = FIntPoint(Picture.Pixels.Num(), 1);
	return Picture;
}
} // namespace

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

	/** What the window shows of a frame of four pixels. */
	std::string Shown() { return Text(Driver.Windows().Picture(TEXT("Warm"))); }

	/** The window's colors are the expected ones but for rounding. */
	static void ExpectAlike(const FPicture& Window, const FPicture& Expected)
	{
		ASSERT_EQ(Window.Size, Expected.Size);
		for (int32 Index = 0; Index < Window.Pixels.Num(); ++Index)
		{
			const FColor A = Window.Pixels[Index];
			const FColor B = Expected.Pixels[Index];
			EXPECT_LE(std::max({std::abs(A.R - B.R), std::abs(A.G - B.G), std::abs(A.B - B.B)}), 1)
				<< Text(Window) << "is not like " << Text(Expected);
		}
	}
};

TEST_F(LookWindow, ShowsEachControlRightOfTheLine)
{
	StartWithPanes();
	const FTonalithAPI_ImageDesc Frame = Described(FourPixels, 4, 1, 5);
	Warm()->DisplayUserInterface(const_cast<FTonalithAPI_ImageDesc&>(Frame));
	const std::string Plain = "000000:9 808080:0 C86432:255 FFFFFF:99 ";
	EXPECT_EQ(Shown(), Plain) << "the defaults change nothing";
	const struct
	{
		const TCHAR* Control;
		const TCHAR* Value;
		const TCHAR* Neutral;
		std::string Graded;
	} Rows[] = {
		{TEXT("Saturation"), TEXT("(X=0.5,Y=1,Z=1.5,W=1)"), TEXT("(X=1,Y=1,Z=1,W=1)"),
			"000000:9 808080:0 A96400:255 FFFFFF:99 "},
		{TEXT("Contrast"), TEXT("(X=1,Y=1.5,Z=2,W=0.5)"), TEXT("(X=1,Y=1,Z=1,W=1)"),
			"000000:9 7B7D80:0 9A6832:255 AED3FF:99 "},
		{TEXT("Gamma"), TEXT("(X=1,Y=2,Z=0.5,W=1)"), TEXT("(X=1,Y=1,Z=1,W=1)"),
			"000000:9 80B53D:0 C8A103:255 FFFFFF:99 "},
		{TEXT("Gain"), TEXT("(X=0.5,Y=1,Z=2,W=0.5)"), TEXT("(X=1,Y=1,Z=1,W=1)"),
			"000000:9 425C80:0 6A4732:255 89BCFF:99 "},
		{TEXT("Offset"), TEXT("(X=0.1,Y=0,Z=-0.1,W=0.05)"), TEXT("(X=0,Y=0,Z=0,W=0)"),
			"6C3F00:9 A38D71:0 DE7500:255 FFFFF9:99 "},
	};
	for (const auto& Row : Rows)
	{
		Driver.Windows().EditProperty(TEXT("Warm"), Row.Control, Row.Value);
		const size_t Half = Row.Graded.find(' ', Row.Graded.find(' ') + 1) + 1;
		for (const auto& [Line, Expected] :
			{std::pair(0.0f, Row.Graded), {0.5f, Plain.substr(0, Plain.find("C8")) + Row.Graded.substr(Half)},
				{1.0f, Plain}, {0.0f, Row.Graded}})
		{
			Driver.Windows().MoveSlider(TEXT("Warm"), Line);
			SCOPED_TRACE(TCHAR_TO_UTF8(Row.Control));
			ExpectAlike(Driver.Windows().Picture(TEXT("Warm")), FromText(Expected));
		}
		Driver.Windows().UndoEdit(TEXT("Warm"), Row.Control);
		EXPECT_EQ(Shown(), Plain) << "taken back";
	}
	// Another look's window does not care.
	Cold()->Gain = FVector4(0, 0, 0, 1);
	Cold()->DisplayUserInterface(const_cast<FTonalithAPI_ImageDesc&>(Frame));
	Driver.Windows().MoveSlider(TEXT("Cold"), 0.5f);
	EXPECT_EQ(Text(Driver.Windows().Picture(TEXT("Cold"))), "000000:9 808080:0 000000:255 000000:99 ");
	EXPECT_EQ(Shown(), Plain);
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

TEST_F(LookWindow, TakesFramesOfAllShapesAndControlsOfAllValues)
{
	StartWithPanes();
	const std::vector<uint8> Long(4 * FTonalithAPI_ImageDesc::LongestSide + 4, 128);
	constexpr int32 Longest = FTonalithAPI_ImageDesc::LongestSide;
	const struct
	{
		int32 Width;
		int32 Height;
		int32 RowLength;
		bool bIsShown;
	} Rows[] = {{1, 1, 1, true}, {1, 5, 1, true}, {1, 2, 3, true}, {Longest, 1, Longest, true}, {1, Longest, 1, true},
		{Longest + 1, 1, Longest + 1, false}, {1, Longest + 1, 1, false}};
	for (const auto& Row : Rows)
	{
		FTonalithAPI_ImageDesc Image = Described(Long.data(), Row.Width, Row.Height, Row.RowLength);
		Warm()->DisplayUserInterface(Image);
		EXPECT_EQ(TakeLog("LogTemp").empty(), Row.bIsShown);
		if (Row.bIsShown)
		{
			EXPECT_EQ(Driver.Windows().Picture(TEXT("Warm")).Size, FIntPoint(Row.Width, Row.Height));
		}
	}
	FTonalithAPI_ImageDesc Image = Described(FourPixels, 4, 1, 4);
	for (const double Bad : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()})
	{
		Warm()->Saturation = Warm()->Contrast = Warm()->Gamma = Warm()->Gain = Warm()->Offset =
			FVector4(Bad, Bad, Bad, Bad);
		Warm()->DisplayUserInterface(Image);
		EXPECT_EQ(Shown(), "000000:9 808080:0 C86432:255 FFFFFF:99 ");
	}
	Warm()->Gain = FVector4(0, 1e300, 1, -1e300);
	Warm()->Gamma = FVector4(0, 0, 0, 0);
	Warm()->DisplayUserInterface(Image);
	EXPECT_EQ(Shown(), "000000:9 000000:0 000000:255 000000:99 ");
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
			Driver.Windows();
			TakeTrace();
			Driver.Windows().EditProperty(TEXT("Warm"), Control, Value);
			Driver.Windows();
			EXPECT_THAT(
				TakeTrace(), ElementsAre(StartsWith("draw viewport"), StartsWith("draw viewport"), "create texture"));
			const FPicture Shown = Driver.TakePicture();
			EXPECT_EQ(IsSamePicture(Shown, Plain), Value == Neutral);
			ExpectAlike(Driver.Windows().Picture(TEXT("Warm")), Shown);
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
	FTonalithAPI_ImageDesc Image = Described(FourPixels, 1, 1, 1);
	Warm()->DisplayUserInterface(Image);
}
