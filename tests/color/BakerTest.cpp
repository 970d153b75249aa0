// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Whole looks as one table: written as text, read and stored again, they show the same picture.
#include "Color/CubeReader.h"
#include "Color/CubeWriter.h"
#include "Color/LookBaker.h"
#include "Color/TableBytes.h"
#include "Formulas.h"

#include <gtest/gtest.h>

namespace
{
/** How far a baked look is off that went through a file and an asset, in steps of 8 bits. */
double worstStep(FDraw& draw, const LookColor::FGrading& grading, const LookColor::FLookTable* table, size_t size)
{
	const auto read = LookColor::ReadCube(LookColor::CubeText(LookColor::Baked(grading, table, size)));
	const LookColor::FLookTable kept = *LookColor::TableFrom(LookColor::BytesOf(std::get<LookColor::FLookTable>(read)));
	EXPECT_EQ(kept.CubeSize, size);
	double worst = 0;
	for (int i = 0; i < 4000; ++i)
	{
		const double grey = i / 255.0;
		FColor3 color{grey, grey, grey};
		for (size_t channel = 0; channel < 3 && i > 255; ++channel)
		{
			color[channel] = static_cast<double>(draw.Below(256)) / 255.0;
		}
		const FColor3 plain = controlled(grading, color);
		worst = std::max(worst, stepsBetween(table ? looked(*table, plain) : plain, looked(kept, color)));
	}
	return worst;
}
} // namespace

TEST(Baker, KeepsThePictureWithinTwoSteps)
{
	FDraw draw;
	const LookColor::FLookTable plain = drawTable(draw, 0, 33, 0, 1);
	LookColor::FLookTable shaped = drawTable(draw, 1024, 17, 0, 1);
	shaped.ShaperDomain = {{-0.1f, 0.0f, 0.1f}, {1.0f, 1.2f, 0.9f}};
	LookColor::FLookTable wide = drawTable(draw, 0, 33, -0.5, 1.5);
	wide.CubeDomain = {{-1.0f, -1.0f, -1.0f}, {1.0f, 1.0f, 1.0f}};
	const LookColor::FLookTable* const tables[] = {nullptr, &plain, &shaped, &wide};
	for (size_t look = 0; look < 24; ++look)
	{
		// Controls from 0.5 to 2; without strong saturation, which bends colors where no table has samples.
		LookColor::FGrading grading = drawControls(draw);
		const bool bOnlySaturation = look % 6 == 0;
		for (LookColor::FChannelGrading& channel : grading)
		{
			channel = bOnlySaturation ? LookColor::FChannelGrading{draw.From(0.5, 1)} : channel;
			channel.Saturation = bOnlySaturation ? channel.Saturation : 1.0;
		}
		const LookColor::FLookTable* const table = bOnlySaturation ? nullptr : tables[look % std::size(tables)];
		EXPECT_LE(worstStep(draw, grading, table, 33), 2.0) << look;
	}
	EXPECT_LE(worstStep(draw, drawControls(draw), nullptr, 65), 2.0);
}
