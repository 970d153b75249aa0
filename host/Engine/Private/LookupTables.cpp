// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LookupTables.h"

#include "Engine/Texture2D.h"
#include "FinalPostProcessSettings.h"

#include <cmath>

namespace
{
constexpr int32 MostTables = 5;

/** The pixels of a table, or null for the neutral one. */
const FColor* PixelsOf(const UTexture* Texture)
{
	const UTexture2D* const Table = static_cast<const UTexture2D*>(Texture);
	if (!Table || Table->LookupFault.IsEmpty())
	{
		return Table ? reinterpret_cast<const FColor*>(Table->RenderedPixels.GetData()) : nullptr;
	}
	UE_LOG(LogTemp, Error, TEXT("The lookup table %s is not used: %s"), *Table->GetName(), *Table->LookupFault);
	return nullptr;
}
} // namespace

FHostLookupTable::FHostLookupTable(const FFinalPostProcessSettings& Settings)
{
	for (int32 Index = 0; Index < std::min(Settings.ContributingLUTs.Num(), MostTables); ++Index)
	{
		const double Weight = Settings.ContributingLUTs[Index].Weight;
		const FColor* const Pixels = PixelsOf(Settings.ContributingLUTs[Index].LUTTexture);
		bIsNeutral = bIsNeutral && !Pixels;
		for (int32 Sample = 0; Sample < Side * Side * Side; ++Sample)
		{
			const std::array<int32, 3> Places{Sample % Side, Sample / Side % Side, Sample / Side / Side};
			const FColor Color = Pixels ? Pixels[Places[1] * Side * Side + Places[2] * Side + Places[0]] : FColor();
			const uint8 Values[] = {Color.R, Color.G, Color.B};
			for (size_t Channel = 0; Channel < Places.size(); ++Channel)
			{
				const double Neutral = 255.0 * Places[Channel] / (Side - 1);
				Samples[static_cast<size_t>(Sample)][Channel] += Weight * (Pixels ? Values[Channel] : Neutral);
			}
		}
	}
}

FColor FHostLookupTable::Apply(const FColor& Color) const
{
	if (bIsNeutral)
	{
		return Color;
	}
	std::array<double, 3> Sum{};
	for (size_t Corner = 0; Corner < 8; ++Corner)
	{
		double Share = 1.0;
		size_t Sample = 0;
		size_t Stride = 1;
		for (const uint8 Value : {Color.R, Color.G, Color.B})
		{
			const double Place = Value * (Side - 1) / 255.0;
			const double First = std::min(std::floor(Place), Side - 2.0);
			const bool bIsFar = (Corner & (Stride == 1 ? 1u : Stride == Side ? 2u : 4u)) != 0;
			Share *= bIsFar ? Place - First : 1.0 - (Place - First);
			Sample += (static_cast<size_t>(First) + bIsFar) * Stride;
			Stride *= Side;
		}
		for (size_t Channel = 0; Channel < 3; ++Channel)
		{
			Sum[Channel] += Share * Samples[Sample][Channel];
		}
	}
	const auto Stored = [](double Value) { return static_cast<uint8>(std::lround(Value)); };
	return FColor(Stored(Sum[0]), Stored(Sum[1]), Stored(Sum[2]), Color.A);
}
