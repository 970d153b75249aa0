// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/CubeWriter.h"

#include <charconv>

namespace LookColor
{
namespace
{
/** With six decimals, whatever the locale. */
std::string TextOf(float Value)
{
	std::array<char, 64> Digits;
	char* const End = Digits.data() + Digits.size();
	return {Digits.data(), std::to_chars(Digits.data(), End, Value, std::chars_format::fixed, 6).ptr};
}

std::string TextOf(const FTriple& Triple)
{
	return TextOf(Triple[0]) + " " + TextOf(Triple[1]) + " " + TextOf(Triple[2]) + "\n";
}

/** A range holds for all three channels. */
std::string RangeOf(const FTableDomain& Domain)
{
	return TextOf(Domain.Begin[0]) + " " + TextOf(Domain.End[0]) + "\n";
}
} // namespace

std::string CubeText(const FLookTable& Table)
{
	std::string Text = "TITLE \"";
	for (const char Byte : Table.Title)
	{
		Text += Byte >= 0x20 && Byte < 0x7F && Byte != '"' ? Byte : '?';
	}
	Text += "\"\n";
	const bool bHasShaper = !Table.Shaper.empty();
	const bool bHasCube = !Table.Cube.empty();
	Text += bHasShaper ? "LUT_1D_SIZE " + std::to_string(Table.Shaper.size()) + "\n" : "";
	Text += bHasCube ? "LUT_3D_SIZE " + std::to_string(Table.CubeSize) + "\n" : "";
	if (bHasShaper && bHasCube)
	{
		Text += "LUT_1D_INPUT_RANGE " + RangeOf(Table.ShaperDomain);
		Text += "LUT_3D_INPUT_RANGE " + RangeOf(Table.CubeDomain);
	}
	else
	{
		const FTableDomain& Domain = bHasShaper ? Table.ShaperDomain : Table.CubeDomain;
		Text += "DOMAIN_MIN " + TextOf(Domain.Begin) + "DOMAIN_MAX " + TextOf(Domain.End);
	}
	for (const std::vector<FTriple>* Samples : {&Table.Shaper, &Table.Cube})
	{
		for (const FTriple& Sample : *Samples)
		{
			Text += TextOf(Sample);
		}
	}
	return Text;
}
} // namespace LookColor
