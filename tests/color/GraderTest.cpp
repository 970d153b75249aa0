// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks on pixels of 8 bits, against the formulas.
#include "Color/TableGrader.h"
#include "Formulas.h"

#include <gtest/gtest.h>

namespace
{
/** All greys, then colors from everywhere; alpha counts on. */
std::vector<uint8_t> drawPixels(FDraw& draw, size_t count)
{
	std::vector<uint8_t> pixels;
	for (size_t i = 0; i < count; ++i)
	{
		for (size_t channel = 0; channel < 3; ++channel)
		{
			pixels.push_back(static_cast<uint8_t>(i < 256 ? i : draw.Below(256)));
		}
		pixels.push_back(static_cast<uint8_t>(i));
	}
	return pixels;
}

/** How far the pixels are from the formulas' values, in steps of 8 bits; and that alpha stays. */
double worstStep(const LookColor::IFrameGrader& grader, const std::vector<uint8_t>& pixels, auto formulas)
{
	std::vector<uint8_t> graded(pixels.size());
	grader.Grade(pixels.data(), graded.data(), pixels.size() / 4);
	double worst = 0;
	for (size_t at = 0; at < pixels.size(); at += 4)
	{
		const FColor3 wanted = formulas(FColor3{pixels[at] / 255.0, pixels[at + 1] / 255.0, pixels[at + 2] / 255.0});
		for (size_t i = 0; i < 3; ++i)
		{
			worst = std::max(worst, std::abs(graded[at + i] - 255 * std::clamp(wanted[i], 0.0, 1.0)));
		}
		EXPECT_EQ(graded[at + 3], pixels[at + 3]);
	}
	return worst;
}
} // namespace

TEST(Grader, ControlsAreTheFormulasRounded)
{
	FDraw draw;
	for (int look = 0; look < 50; ++look)
	{
		const LookColor::FGrading grading = drawControls(draw);
		const LookColor::FControlsGrader grader(grading);
		EXPECT_LE(
			worstStep(grader, drawPixels(draw, 10000), [&](const FColor3& c) { return controlled(grading, c); }), 0.501)
			<< look;
	}
}

TEST(Grader, TablesBehindControlsAreOffByOneStepAtMost)
{
	FDraw draw;
	const struct
	{
		size_t shaper;
		size_t cube;
		double least;
		double most;
	} kinds[] = {{0, 33, 0, 1}, {0, 2, 0, 1}, {256, 17, 0, 1}, {1024, 0, 0, 1}, {0, 9, -0.25, 1.5}};
	for (size_t look = 0; look < 50; ++look)
	{
		const auto& kind = kinds[look % std::size(kinds)];
		LookColor::FLookTable table = drawTable(draw, kind.shaper, kind.cube, kind.least, kind.most);
		(kind.shaper ? table.ShaperDomain : table.CubeDomain) = {{-0.1f, 0.0f, 0.1f}, {1.0f, 1.2f, 0.9f}};
		const LookColor::FPackedCube cube(table);
		const LookColor::FGrading grading = look < std::size(kinds) ? LookColor::FGrading() : drawControls(draw);
		const LookColor::FTableGrader grader(grading, table, cube);
		EXPECT_LE(worstStep(grader, drawPixels(draw, 10000),
					  [&](const FColor3& c) { return looked(table, controlled(grading, c)); }),
			1.5)
			<< look;
	}
}

TEST(Grader, TheTableThatChangesNothingDoesSo)
{
	FDraw draw;
	const std::vector<uint8_t> pixels = drawPixels(draw, 5000);
	const LookColor::FLookTable none;
	const LookColor::FPackedCube cube(none);
	std::vector<uint8_t> graded = pixels;
	LookColor::FTableGrader({}, none, cube).Grade(graded.data(), graded.data(), graded.size() / 4);
	EXPECT_EQ(graded, pixels);
}
