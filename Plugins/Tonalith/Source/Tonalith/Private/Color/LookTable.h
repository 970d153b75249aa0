// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Lookup tables: colors that stand for others. Values are in the encoding that the table was made for; displays have 0 to 1.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace LookColor
{
/** Red, green and blue. */
using FTriple = std::array<float, 3>;

/** What each channel of a stage's input may be; what lies outside counts as the nearest end. Begin < End. */
struct FTableDomain
{
	FTriple Begin{0.0f, 0.0f, 0.0f};
	FTriple End{1.0f, 1.0f, 1.0f};
};

/** Sizes of tables, in samples a channel. */
inline constexpr std::size_t LeastTableSize = 2;
inline constexpr std::size_t MostCubeSize = 129;
inline constexpr std::size_t MostShaperSize = 65536;

/** First a curve for each channel, then a cube of colors; either may be missing. All values are finite. */
struct FLookTable
{
	/** For people, UTF-8. */
	std::string Title;

	/** Samples of the three curves, evenly over the domain; linear between. Empty for no curves. */
	std::vector<FTriple> Shaper;
	FTableDomain ShaperDomain;

	/** CubeSize samples along each side, evenly over the domain, red running fastest; tetrahedra between. */
	std::vector<FTriple> Cube;
	FTableDomain CubeDomain;
	std::size_t CubeSize = 0;
};

/** What the table makes of a color. */
FTriple Applied(const FLookTable& Table, const FTriple& Color);

/** Where a value lies between two samples of a row: the first one, and the share of the second, 0 to 1. */
struct FTablePlace
{
	std::size_t Sample;
	float Share;
};

/** @param Value of one channel; what is no number counts as the begin. @param Size at least 2 */
FTablePlace PlaceInTable(float Value, float Begin, float End, std::size_t Size);

/** What the table's curves make of a value of one channel. */
float Shaped(const FLookTable& Table, std::size_t Channel, float Value);
} // namespace LookColor
