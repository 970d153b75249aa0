// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/SceneRenderer.h"

#include "CanvasTypes.h"
#include "Engine/Engine.h"
#include "LookupTables.h"
#include "SceneView.h"
#include "StageScene.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <tuple>

namespace
{
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
		// The power may be infinite, and no gain is still none.
		return Encoded((Gain[Channel] > 0.0 ? Value * Gain[Channel] : 0.0) + Shift[Channel]);
	};
	return FColor(Grade(0), Grade(1), Grade(2), Plain.A);
}

EHostScene Shown = EHostScene::Chart;

/**
 * Red grows from left to right, blue falls, green grows from top to bottom; the last quarter is a ramp from black to white.
 * Alpha is 0, as scenes leave it.
 */
FColor ChartColor(FIntPoint Pixel, FIntPoint Size)
{
	const auto Share = [](int32 At, int32 Count) { return static_cast<uint8>(255 * At / std::max(Count - 1, 1)); };
	const uint8 Across = Share(Pixel.X, Size.X);
	return Pixel.Y < Size.Y * 3 / 4 ? FColor(Across, Share(Pixel.Y, Size.Y), static_cast<uint8>(255 - Across), 0)
									: FColor(Across, Across, Across, 0);
}

/** The mean of four places in the pixel. */
FColor StageColor(FIntPoint Pixel, FIntPoint Size)
{
	FLight Sum{};
	for (const auto& [X, Y] : {std::pair(0.25, 0.25), {0.75, 0.25}, {0.25, 0.75}, {0.75, 0.75}})
	{
		const FLight Light =
			StageLight((Pixel.X + X) / Size.X, (Pixel.Y + Y) / Size.Y, static_cast<double>(Size.X) / Size.Y);
		std::transform(Light.begin(), Light.end(), Sum.begin(), Sum.begin(), std::plus());
	}
	return FColor(Encoded(Sum[0] / 4.0), Encoded(Sum[1] / 4.0), Encoded(Sum[2] / 4.0), 0);
}

/** The scene in a size, which is drawn once. */
const TArray<FColor>& PlainPicture(FIntPoint Size)
{
	static std::map<std::tuple<EHostScene, int32, int32>, TArray<FColor>> Pictures;
	TArray<FColor>& Picture = Pictures[{Shown, Size.X, Size.Y}];
	for (int32 Index = Picture.Num(); Index < Size.X * Size.Y; ++Index)
	{
		const FIntPoint Pixel(Index % Size.X, Index / Size.X);
		Picture.Add(Shown == EHostScene::Chart ? ChartColor(Pixel, Size) : StageColor(Pixel, Size));
	}
	return Picture;
}
} // namespace

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
	const FHostLookupTable Table(View.FinalPostProcessSettings);
	const TArray<FColor>& Picture = PlainPicture(Canvas.Size);
	for (int32 Index = 0; Index < Picture.Num(); ++Index)
	{
		Canvas.Pixels[Index] = Extensions.IsEmpty() ? Picture[Index] : Table.Apply(Graded(Picture[Index], Settings));
	}
}

void HostScene::Show(EHostScene Scene)
{
	Shown = Scene;
}
