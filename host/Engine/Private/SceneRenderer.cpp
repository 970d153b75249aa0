// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/SceneRenderer.h"

#include "CanvasTypes.h"
#include "Engine/Engine.h"
#include "SceneView.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
constexpr uint8 Alpha = 0;

constexpr FColor Patches[] = {{255, 0, 0, Alpha}, {0, 255, 0, Alpha}, {0, 0, 255, Alpha}, {0, 255, 255, Alpha},
	{255, 0, 255, Alpha}, {255, 255, 0, Alpha}, {194, 150, 130, Alpha}, {87, 108, 67, Alpha}};

/** How strong a primary is in a hue: 1 in the third of the circle around it, 0 in the opposite one. */
double Primary(double Hue, double Centre)
{
	double Distance = std::abs(Hue - Centre);
	Distance = std::min(Distance, 1.0 - Distance);
	return std::clamp(2.0 - 6.0 * Distance, 0.0, 1.0);
}

FColor Hue(double Across, double Down)
{
	const auto Channel = [&](double Centre)
	{ return static_cast<uint8>(std::lround(255.0 * (Down + (1.0 - Down) * Primary(Across, Centre)))); };
	return FColor(Channel(0.0), Channel(1.0 / 3.0), Channel(2.0 / 3.0), Alpha);
}

/** The last of a number of steps is 1, the first 0. */
double Fraction(int32 Index, int32 Count)
{
	return Count > 1 ? static_cast<double>(Index) / (Count - 1) : 0.0;
}

/** Red, green and blue in linear light; 1 is white. */
using FLight = std::array<double, 3>;

/** A stored value of 0 to 255 as linear light, after the sRGB standard (IEC 61966-2-1). */
double Decoded(uint8 Stored)
{
	const double Value = Stored / 255.0;
	return Value <= 0.04045 ? Value / 12.92 : std::pow((Value + 0.055) / 1.055, 2.4);
}

uint8 Encoded(double Light)
{
	const double Value = std::clamp(Light, 0.0, 1.0);
	const double Stored = Value <= 0.0031308 ? Value * 12.92 : 1.055 * std::pow(Value, 1.0 / 2.4) - 0.055;
	return static_cast<uint8>(std::lround(255.0 * Stored));
}

/** The values for red, green and blue, each scaled by W. */
FLight Scaled(const FVector4& Control)
{
	return {Control.X * Control.W, Control.Y * Control.W, Control.Z * Control.W};
}

FColor Graded(const FColor& Plain, const FPostProcessSettings& Settings)
{
	// Luminance after ITU-R BT.709.
	const FLight Light{Decoded(Plain.R), Decoded(Plain.G), Decoded(Plain.B)};
	const double Luminance = 0.2126 * Light[0] + 0.7152 * Light[1] + 0.0722 * Light[2];
	constexpr double MiddleGrey = 0.18;
	const FLight Saturation = Scaled(Settings.ColorSaturation);
	const FLight Contrast = Scaled(Settings.ColorContrast);
	const FLight Gamma = Scaled(Settings.ColorGamma);
	const FLight Gain = Scaled(Settings.ColorGain);
	const FVector4& Offset = Settings.ColorOffset;
	const FLight Shift{Offset.X + Offset.W, Offset.Y + Offset.W, Offset.Z + Offset.W};
	const auto Grade = [&](size_t Channel)
	{
		double Value = std::max(0.0, Luminance + (Light[Channel] - Luminance) * Saturation[Channel]);
		Value = std::pow(Value / MiddleGrey, Contrast[Channel]) * MiddleGrey;
		Value = std::pow(Value, 1.0 / Gamma[Channel]);
		return Encoded(Value * Gain[Channel] + Shift[Channel]);
	};
	return FColor(Grade(0), Grade(1), Grade(2), Plain.A);
}
} // namespace

FColor HostScene::ChartColor(FIntPoint Pixel, FIntPoint Size)
{
	const int32 PatchTop = Size.Y / 2;
	const int32 RampTop = Size.Y * 3 / 4;
	if (Pixel.Y < PatchTop)
	{
		return Hue(static_cast<double>(Pixel.X) / Size.X, static_cast<double>(Pixel.Y) / PatchTop);
	}
	if (Pixel.Y < RampTop)
	{
		return Patches[Pixel.X * 8 / Size.X];
	}
	const uint8 Grey = static_cast<uint8>(std::lround(255.0 * Fraction(Pixel.X, Size.X)));
	return FColor(Grey, Grey, Grey, Alpha);
}

void HostScene::Draw(FViewport& Viewport, FCanvas& Canvas)
{
	FSceneViewFamily Family;
	Family.RenderTarget = &Viewport;
	FSceneView View;
	const auto Extensions = GEngine->ViewExtensions->GatherActiveExtensions({&Viewport});
	for (const auto& Extension : Extensions)
	{
		Extension->SetupViewFamily(Family);
		Extension->SetupView(Family, View);
		Extension->BeginRenderViewFamily(Family);
	}
	const FPostProcessSettings& Settings = View.FinalPostProcessSettings;
	for (int32 Y = 0; Y < Canvas.Size.Y; ++Y)
	{
		for (int32 X = 0; X < Canvas.Size.X; ++X)
		{
			const FColor Plain = ChartColor({X, Y}, Canvas.Size);
			Canvas.Pixels[Y * Canvas.Size.X + X] = Extensions.IsEmpty() ? Plain : Graded(Plain, Settings);
		}
	}
}
