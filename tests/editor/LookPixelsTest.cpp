// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks as pixels of the panes that show them.
#include "ImportOverride.h"
#include "LookTest.h"
#include "UObject/WeakObjectPtr.h"
#include "ViewportClient.h"

#include <limits>

using testing::Contains;
using testing::Not;

namespace
{
/** Where the chart's patches and its ramp lie. */
constexpr int32 Skin = 4 * 16 + 12;
constexpr int32 Red = 4 * 16;
constexpr int32 White = 7 * 16 + 15;
constexpr int32 Black = 7 * 16;
} // namespace

class LookPixels : public FLookTest
{
protected:
	void Start()
	{
		StartWithPanes();
		Plain = Driver.TakePicture();
		Record(PaneA) = Configured(true, 1.0f, Warm());
	}

	bool ShowsPlain() { return IsSamePicture(Driver.TakePicture(), Plain); }

	/** The next frame with one control at a value. */
	FPicture With(FVector4 UTonalithObject::*Control, const FVector4& Value)
	{
		const FVector4 Before = Warm()->*Control;
		Warm()->*Control = Value;
		const FPicture Picture = Driver.TakePicture();
		Warm()->*Control = Before;
		return Picture;
	}

	FPicture Plain;
};

TEST_F(LookPixels, EachControlGradesInLinearLight)
{
	Start();
	EXPECT_TRUE(ShowsPlain()) << "the defaults change nothing";
	const struct
	{
		FVector4 UTonalithObject::*Control;
		FVector4 Value;
		int32 Pixel;
		FColor Expected;
	} Rows[] = {
		// The luminance of pure red is 0.2126, stored as 127.
		{&UTonalithObject::Saturation, {1, 1, 1, 0}, Red, {127, 127, 127, 0}},
		// 194, 150, 130 are 0.5395, 0.3050, 0.2232 in linear light; their luminance 0.3489.
		{&UTonalithObject::Saturation, {1, 1, 1, 0}, Skin, {159, 159, 159, 0}},
		// Half of the way to the luminance: 0.4442, 0.3270, 0.2861.
		{&UTonalithObject::Saturation, {1, 1, 1, 0.5}, Skin, {178, 155, 146, 0}},
		// (0.5395 / 0.18)^2 * 0.18 = 1.6169; 0.5168; 0.2768.
		{&UTonalithObject::Contrast, {1, 1, 1, 2}, Skin, {255, 190, 144, 0}},
		// The square root: 0.7345, 0.5523, 0.4724.
		{&UTonalithObject::Gamma, {1, 1, 1, 2}, Skin, {223, 196, 183, 0}},
		// 0.5395 / 2, and green and blue as they are.
		{&UTonalithObject::Gain, {0.5, 1, 1, 1}, Skin, {142, 150, 130, 0}},
		// All scaled by W: 0.1349, 0.1525, 0.1116.
		{&UTonalithObject::Gain, {0.5, 1, 1, 0.5}, Skin, {103, 109, 94, 0}},
		// 0.2 and 0.1 more: 0.8395, 0.4050, 0.3232.
		{&UTonalithObject::Offset, {0.2, 0, 0, 0.1}, Skin, {236, 171, 154, 0}},
		{&UTonalithObject::Offset, {0, 0, 0, -0.5}, Black, {0, 0, 0, 0}},
		{&UTonalithObject::Gain, {1, 1, 1, 2}, White, {255, 255, 255, 0}},
	};
	for (const auto& Row : Rows)
	{
		const FPicture Picture = With(Row.Control, Row.Value);
		EXPECT_EQ(Picture.Pixels[Row.Pixel], Row.Expected)
			<< int(Picture.Pixels[Row.Pixel].R) << " " << int(Picture.Pixels[Row.Pixel].G) << " "
			<< int(Picture.Pixels[Row.Pixel].B);
	}
	Driver.Quit();
}

TEST_F(LookPixels, TheWeightBlendsTheControls)
{
	Start();
	Warm()->Gain = FVector4(0.5, 1, 1, 1);
	const FPicture Full = Driver.TakePicture();
	// Half of the way from 1 to 0.5: 0.5395 * 0.75 = 0.4046.
	Record(PaneA).Weight = 0.5f;
	EXPECT_EQ(Driver.TakePicture().Pixels[Skin], FColor(171, 150, 130, 0));
	for (const float Nothing : {0.0f, -1.0f, std::numeric_limits<float>::quiet_NaN()})
	{
		Record(PaneA).Weight = Nothing;
		EXPECT_TRUE(ShowsPlain());
	}
	Record(PaneA).Weight = 7.0f;
	EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Full));
	Driver.Quit();
}

TEST_F(LookPixels, OnlyAPaneWithTheFlagAndALookShowsIt)
{
	Start();
	Warm()->Gain = FVector4(1, 1, 1, 0.5);
	EXPECT_FALSE(ShowsPlain());
	Driver.ActivatePane(PaneB);
	EXPECT_TRUE(ShowsPlain());
	Driver.ActivatePane(PaneA);
	Record(PaneA).bDisplay = false;
	EXPECT_TRUE(ShowsPlain());
	Record(PaneA) = Configured(true, 1.0f, nullptr);
	EXPECT_TRUE(ShowsPlain());
	// A deleted look, shown in two panes.
	Record(PaneA) = Record(PaneB) = Configured(true, 1.0f, Warm());
	EXPECT_FALSE(ShowsPlain());
	HostAssets::Delete(*Warm());
	EXPECT_TRUE(ShowsPlain());
	CollectGarbage();
	EXPECT_EQ(Record(PaneA).Look, nullptr);
	Driver.ActivatePane(PaneB);
	EXPECT_TRUE(ShowsPlain());
	Driver.Quit();
}

TEST_F(LookPixels, BadValuesAreTakenAsTheNearestGoodOnes)
{
	Start();
	constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
	constexpr double Infinity = std::numeric_limits<double>::infinity();
	for (FVector4 UTonalithObject::*Control : {&UTonalithObject::Saturation, &UTonalithObject::Contrast,
			 &UTonalithObject::Gamma, &UTonalithObject::Gain, &UTonalithObject::Offset})
	{
		EXPECT_TRUE(IsSamePicture(With(Control, {NaN, Infinity, -Infinity, NaN}), Plain));
		for (const double Wild : {-1e300, -1.0, 0.0, 1e300})
		{
			With(Control, {Wild, Wild, Wild, Wild});
		}
	}
	EXPECT_TRUE(IsSamePicture(
		With(&UTonalithObject::Saturation, {-5, -5, -5, 1}), With(&UTonalithObject::Saturation, {0, 0, 0, 1})));
	Driver.Quit();
}

TEST_F(LookPixels, AFrameForTheLooksWindowShowsNoLook)
{
	Start();
	Warm()->Gain = FVector4(1, 1, 1, 0.5);
	EXPECT_FALSE(ShowsPlain());
	Driver.OpenAssets({WarmPath});
	EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Warm")), Plain));
	EXPECT_FALSE(ShowsPlain());
	Driver.Quit();
}

TEST_F(LookPixels, LooksLiveAsLongAsARecordNamesThem)
{
	Start();
	const FWeakObjectPtr Shown = NewObject<UTonalithObject>();
	const FWeakObjectPtr Hidden = NewObject<UTonalithObject>();
	const FWeakObjectPtr Unused = NewObject<UTonalithObject>();
	Record(PaneA) = Configured(true, 1.0f, static_cast<UTonalithObject*>(Shown.Get()));
	Record(PaneB) = Configured(false, 1.0f, static_cast<UTonalithObject*>(Hidden.Get()));
	CollectGarbage();
	EXPECT_EQ(Record(PaneA).Look, Shown.Get());
	EXPECT_NE(Shown.Get(), nullptr);
	EXPECT_EQ(Record(PaneB).Look, Hidden.Get());
	EXPECT_NE(Hidden.Get(), nullptr);
	EXPECT_EQ(Unused.Get(), nullptr);
	EXPECT_TRUE(ShowsPlain());
	Record(PaneA).Look = nullptr;
	CollectGarbage();
	EXPECT_EQ(Shown.Get(), nullptr);
	Driver.Quit();
}

TEST_F(LookPixels, FramesAllocateNothingInTheModule)
{
	Start();
	const HMODULE Library = GetModuleHandleW(TEXT("UnrealEditor-Tonalith.dll"));
	const ImportOverride allocation(
		"_Znwy", static_cast<void* (*)(size_t)>(nullptr), [](size_t Size) { return ::operator new(Size); }, Library);
	for (const bool bDisplay : {true, false})
	{
		Record(PaneA).bDisplay = bDisplay;
		for (int Frame = 0; Frame < 10; ++Frame)
		{
			Driver.TakePicture();
		}
		EXPECT_EQ(allocation.calls(), 0);
	}
	FViewportClient Another;
	DisplayRecords().FindOrAddDisplayConfiguration(&Another);
	EXPECT_GT(allocation.calls(), 0) << "what the module allocates is counted";
	DisplayRecords().RemoveDisplayConfiguration(&Another);
	Driver.Quit();
}

TEST_F(LookPixels, ACommandletHasNoExtension)
{
	Options.bIsCommandlet = true;
	Driver.Start(Options);
	EXPECT_THAT(TakeTrace(), Not(Contains("register view extension")));
	Driver.Quit();
}
