// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks on pixels of 8 bits, against the formulas.
#include "Color/TableGrader.h"
#include "Formulas.h"

#include <gtest/gtest.h>

namespace
{
/** All greys, then colors from everywhere; alpha counts on. */
std::vector<uint8_t> drawPixels(FDraw& draw)
{
	std::vector<uint8_t> pixels(4 * 20000);
	for (size_t at = 0; at < pixels.size(); ++at)
	{
		pixels[at] = static_cast<uint8_t>(at < 4 * 256 || at % 4 == 3 ? at / 4 : draw.Below(256));
	}
	return pixels;
}

/** How far the grader, in place, is from the formulas' values, in steps of 8 bits; and that alpha stays. */
double worstStep(const LookColor::IFrameGrader& grader, const std::vector<uint8_t>& pixels, auto formulas)
{
	std::vector<uint8_t> graded = pixels;
	grader.Grade(graded.data(), graded.data(), pixels.size() / 4);
	double worst = 0;
	for (size_t at = 0; at < pixels.size(); at += 4)
	{
		const auto color = [at](const std::vector<uint8_t>& of) {
			return FColor3{of[at] / 255.0, of[at + 1] / 255.0, of[at + 2] / 255.0};
		};
		worst = std::max(worst, stepsBetween(formulas(color(pixels)), color(graded)));
		worst = graded[at + 3] == pixels[at + 3] ? worst : 255;
	}
	return worst;
}
} // namespace

TEST(Grader, IsTheControlsRoundedAndOffByOneStepAtMostBehindATable)
{
	FDraw draw;
	const struct
	{
		size_t shaper;
		size_t cube;
		double least;
		double most;
	} kinds[] = {{0, 33, 0, 1}, {0, 2, 0, 1}, {256, 17, 0, 1}, {1024, 0, 0, 1}, {0, 9, -0.25, 1.5}, {0, 0, 0, 1}};
	for (size_t look = 0; look < 50; ++look)
	{
		const auto& kind = kinds[look % std::size(kinds)];
		LookColor::FLookTable table = drawTable(draw, kind.shaper, kind.cube, kind.least, kind.most);
		(kind.shaper ? table.ShaperDomain : table.CubeDomain) = {{-0.1f, 0.0f, 0.1f}, {1.0f, 1.2f, 0.9f}};
		table.CubeDomain = kind.cube ? table.CubeDomain : LookColor::FTableDomain();
		const LookColor::FGrading grading = look < std::size(kinds) ? LookColor::FGrading() : drawControls(draw);
		const std::vector<uint8_t> pixels = drawPixels(draw);
		const auto controls = [&](const FColor3& color) { return controlled(grading, color); };
		EXPECT_LE(worstStep(LookColor::FControlsGrader(grading), pixels, controls), 0.501) << look;
		EXPECT_EQ(LookColor::LeastLightFor(grading[0], LookColor::GradedLight(grading[0], 0.0)), 0.0) << "black does";
		const LookColor::FPackedCube cube(table);
		const auto whole = [&](const FColor3& color) { return looked(table, controls(color)); };
		EXPECT_LE(worstStep(LookColor::FTableGrader(grading, table, cube), pixels, whole), 1.5) << look;
	}
	EXPECT_EQ(LookColor::GradedLight({1.0, 64.0, 0.01, 0.0, 0.25}, 1.0), 0.25) << "no gain of endless light";
}
