// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LookGrading.h"

#include "Engine/Texture2D.h"
#include "TonalithObject.h"

namespace
{
struct FLookControlRange
{
	double Minimum;
	double Maximum;

	/** Changes nothing. */
	double Neutral;
};

constexpr FLookControlRange Factor{0.0, 8.0, 1.0};
/** The engine divides by it. */
constexpr FLookControlRange Exponent{0.01, 8.0, 1.0};
constexpr FLookControlRange Summand{-8.0, 8.0, 0.0};

double ShareOf(float Weight)
{
	return FMath::IsFinite(Weight) ? FMath::Clamp(static_cast<double>(Weight), 0.0, 1.0) : 0.0;
}

double Blend(double Setting, double Value, const FLookControlRange& Range, double Weight)
{
	const double Valid = FMath::IsFinite(Value) ? FMath::Clamp(Value, Range.Minimum, Range.Maximum) : Range.Neutral;
	return Setting + (Valid - Setting) * Weight;
}

void Blend(FVector4& Setting, const FVector4& Value, const FLookControlRange& Range, double Weight)
{
	Setting = FVector4(Blend(Setting.X, Value.X, Range, Weight), Blend(Setting.Y, Value.Y, Range, Weight),
		Blend(Setting.Z, Value.Z, Range, Weight), Blend(Setting.W, Value.W, Range, Weight));
}
} // namespace

void BlendLook(const UTonalithObject& Look, float Weight, FPostProcessSettings& Settings)
{
	const double Share = ShareOf(Weight);
	Blend(Settings.ColorSaturation, Look.Saturation, Factor, Share);
	Blend(Settings.ColorContrast, Look.Contrast, Factor, Share);
	Blend(Settings.ColorGamma, Look.Gamma, Exponent, Share);
	Blend(Settings.ColorGain, Look.Gain, Factor, Share);
	Blend(Settings.ColorOffset, Look.Offset, Summand, Share);
	Settings.bOverride_ColorSaturation = true;
	Settings.bOverride_ColorContrast = true;
	Settings.bOverride_ColorGamma = true;
	Settings.bOverride_ColorGain = true;
	Settings.bOverride_ColorOffset = true;
}

void BlendLook(UTonalithObject& Look, float Weight, FFinalPostProcessSettings& Settings)
{
	BlendLook(Look, Weight, static_cast<FPostProcessSettings&>(Settings));
	UTexture2D* const Table = Look.GetTableTexture();
	if (Table && ShareOf(Weight) > 0.0)
	{
		Settings.LerpTo(Table, static_cast<float>(ShareOf(Weight)));
	}
}

LookColor::FGrading GradingOf(const UTonalithObject& Look)
{
	FPostProcessSettings Settings;
	BlendLook(Look, 1.0f, Settings);
	const auto Channel = [&Settings](double FVector4::*Color)
	{
		LookColor::FChannelGrading Grading;
		Grading.Saturation = Settings.ColorSaturation.*Color * Settings.ColorSaturation.W;
		Grading.Contrast = Settings.ColorContrast.*Color * Settings.ColorContrast.W;
		Grading.Gamma = Settings.ColorGamma.*Color * Settings.ColorGamma.W;
		Grading.Gain = Settings.ColorGain.*Color * Settings.ColorGain.W;
		Grading.Offset = Settings.ColorOffset.*Color + Settings.ColorOffset.W;
		return Grading;
	};
	return {Channel(&FVector4::X), Channel(&FVector4::Y), Channel(&FVector4::Z)};
}
