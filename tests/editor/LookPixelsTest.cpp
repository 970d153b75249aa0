// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks in the settings of views and as pixels of the panes that show them.
#include "Engine/Engine.h"
#include "LookTest.h"
#include "SceneView.h"

#include <limits>

namespace
{
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

/** One line a control: its four values, and an exclamation mark when they override the scene's. */
std::string Text(const FPostProcessSettings& Settings)
{
	std::ostringstream Text;
	const auto Add = [&Text](bool bOverride, const FVector4& Value)
	{ Text << Value.X << " " << Value.Y << " " << Value.Z << " " << Value.W << (bOverride ? "!\n" : "\n"); };
	Add(Settings.bOverride_ColorSaturation, Settings.ColorSaturation);
	Add(Settings.bOverride_ColorContrast, Settings.ColorContrast);
	Add(Settings.bOverride_ColorGamma, Settings.ColorGamma);
	Add(Settings.bOverride_ColorGain, Settings.ColorGain);
	Add(Settings.bOverride_ColorOffset, Settings.ColorOffset);
	return Text.str();
}

const std::string Neutral = "1 1 1 1\n1 1 1 1\n1 1 1 1\n1 1 1 1\n0 0 0 0\n";

/** What the extensions that are active for a viewport make of the views of a target. */
FPostProcessSettings Settings(FViewport* Asked, const FRenderTarget* Target, const FVector4& Gain = {1, 1, 1, 1})
{
	FSceneViewFamily Family;
	Family.RenderTarget = Target;
	FSceneView View;
	View.FinalPostProcessSettings.ColorGain = Gain;
	for (const auto& Extension : GEngine->ViewExtensions->GatherActiveExtensions({Asked}))
	{
		Extension->SetupView(Family, View);
	}
	return View.FinalPostProcessSettings;
}
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

	FViewport* Viewport(const TCHAR* Pane) { return Driver.Pane(Pane).GetLevelViewportClient().Viewport; }

	/** Of the next view of the first pane. */
	std::string NextView() { return Text(Settings(Viewport(PaneA), Viewport(PaneA))); }

	FPicture Plain;
};

TEST_F(LookPixels, EachControlIsBlendedIntoItsSettingByTheWeight)
{
	Start();
	EXPECT_TRUE(ShowsPlain()) << "the defaults change nothing";
	Warm()->Saturation = FVector4(0.25, 0.5, 0.75, 1.25);
	Warm()->Contrast = FVector4(1.5, 1.75, 2, 2.25);
	Warm()->Gamma = FVector4(2.5, 2.75, 3, 3.25);
	Warm()->Gain = FVector4(3.5, 3.75, 4, 4.25);
	Warm()->Offset = FVector4(-0.25, -0.5, -0.75, -1);
	EXPECT_EQ(NextView(), "0.25 0.5 0.75 1.25!\n1.5 1.75 2 2.25!\n2.5 2.75 3 3.25!\n3.5 3.75 4 4.25!\n"
						  "-0.25 -0.5 -0.75 -1!\n");
	EXPECT_FALSE(ShowsPlain());
	const struct
	{
		float Weight;
		double Gain;
	} Rows[] = {{1, 3.5}, {0.5f, 4.75}, {0, 6}, {-1, 6}, {7, 3.5}, {static_cast<float>(NaN), 6}};
	for (const auto& Row : Rows)
	{
		Record(PaneA).Weight = Row.Weight;
		EXPECT_EQ(Settings(Viewport(PaneA), Viewport(PaneA), {6, 6, 6, 6}).ColorGain.X, Row.Gain) << Row.Weight;
	}
	EXPECT_TRUE(ShowsPlain());
}

TEST_F(LookPixels, BadValuesAreTakenAsTheNearestGoodOnes)
{
	Start();
	const struct
	{
		double Value;
		const char* Factor;
		const char* Gamma;
		const char* Offset;
	} Rows[] = {{NaN, "1", "1", "0"}, {Infinity, "1", "1", "0"}, {1e300, "8", "8", "8"}, {0, "0", "0.01", "0"},
		{-1, "0", "0.01", "-1"}, {-1e300, "0", "0.01", "-8"}};
	const auto Line = [](const std::string& Value) { return Value + " " + Value + " " + Value + " " + Value + "!\n"; };
	for (const auto& Row : Rows)
	{
		for (FVector4 UTonalithObject::*Control : {&UTonalithObject::Saturation, &UTonalithObject::Contrast,
				 &UTonalithObject::Gamma, &UTonalithObject::Gain, &UTonalithObject::Offset})
		{
			Warm()->*Control = FVector4(Row.Value, Row.Value, Row.Value, Row.Value);
		}
		EXPECT_EQ(
			NextView(), Line(Row.Factor) + Line(Row.Factor) + Line(Row.Gamma) + Line(Row.Factor) + Line(Row.Offset));
		Driver.TakePicture();
	}
}

TEST_F(LookPixels, OnlyTheViewsOfTheViewportItselfAreGraded)
{
	Start();
	Warm()->Gain = FVector4(1, 1, 1, 0.5);
	const auto Extensions = GEngine->ViewExtensions->GatherActiveExtensions({Viewport(PaneA)});
	ASSERT_EQ(Extensions.Num(), 1);
	EXPECT_NE(NextView(), Neutral);
	EXPECT_EQ(Text(Settings(Viewport(PaneA), Viewport(PaneB))), Neutral);
	EXPECT_EQ(Text(Settings(Viewport(PaneA), nullptr)), Neutral);
	for (FViewport* Other : {Viewport(PaneB), static_cast<FViewport*>(nullptr)})
	{
		EXPECT_EQ(Text(Settings(Other, Viewport(PaneA))), Neutral);
		// A family that was set up before another viewport was asked for.
		FSceneViewFamily Family;
		Family.RenderTarget = Other ? Viewport(PaneA) : nullptr;
		FSceneView View;
		Extensions[0]->SetupView(Family, View);
		EXPECT_EQ(Text(View.FinalPostProcessSettings), Neutral);
	}
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
	EXPECT_EQ(Shown(PaneA), "on 1 no look");
	Driver.ActivatePane(PaneB);
	EXPECT_TRUE(ShowsPlain());
}
