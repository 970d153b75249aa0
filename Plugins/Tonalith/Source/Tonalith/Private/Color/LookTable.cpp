// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/LookTable.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace LookColor
{
namespace
{
/** The tetrahedra around the cube's diagonal: from the near corner to the far one along the axes, the longest way first. */
FTriple InCube(const FLookTable& Table, const std::array<FTablePlace, 3>& Places)
{
	const std::size_t Size = Table.CubeSize;
	const std::array<std::size_t, 3> Strides{1, Size, Size * Size};
	std::array<std::pair<float, std::size_t>, 3> Ways;
	std::size_t Sample = 0;
	for (std::size_t Channel = 0; Channel < Ways.size(); ++Channel)
	{
		Ways[Channel] = {Places[Channel].Share, Strides[Channel]};
		Sample += Places[Channel].Sample * Strides[Channel];
	}
	std::sort(Ways.begin(), Ways.end(), std::greater());
	FTriple Color{};
	float Rest = 1.0f;
	const auto Add = [&](float Share)
	{
		for (std::size_t Channel = 0; Channel < Color.size(); ++Channel)
		{
			Color[Channel] += Table.Cube[Sample][Channel] * Share;
		}
	};
	for (const auto& [Share, Stride] : Ways)
	{
		Add(Rest - Share);
		Rest = Share;
		Sample += Stride;
	}
	Add(Rest);
	return Color;
}
} // namespace

FTablePlace PlaceInTable(float Value, float Begin, float End, std::size_t Size)
{
	const float Last = static_cast<float>(Size - 1);
	const float Along = (Value - Begin) / (End - Begin);
	const float Place = Along > 0.0f ? std::min(Along, 1.0f) * Last : 0.0f;
	const std::size_t Sample = std::min(static_cast<std::size_t>(Place), Size - 2);
	return {Sample, Place - static_cast<float>(Sample)};
}

float Shaped(const FLookTable& Table, std::size_t Channel, float Value)
{
	if (Table.Shaper.empty())
	{
		return Value;
	}
	const FTableDomain& Domain = Table.ShaperDomain;
	const auto [Sample, Share] = PlaceInTable(Value, Domain.Begin[Channel], Domain.End[Channel], Table.Shaper.size());
	return Table.Shaper[Sample][Channel] * (1.0f - Share) + Table.Shaper[Sample + 1][Channel] * Share;
}

FTriple Applied(const FLookTable& Table, const FTriple& Color)
{
	FTriple Result;
	std::array<FTablePlace, 3> Places;
	for (std::size_t Channel = 0; Channel < Result.size(); ++Channel)
	{
		Result[Channel] = Shaped(Table, Channel, Color[Channel]);
		Places[Channel] = PlaceInTable(Result[Channel], Table.CubeDomain.Begin[Channel], Table.CubeDomain.End[Channel],
			std::max(Table.CubeSize, LeastTableSize));
	}
	return Table.Cube.empty() ? Result : InCube(Table, Places);
}
} // namespace LookColor
