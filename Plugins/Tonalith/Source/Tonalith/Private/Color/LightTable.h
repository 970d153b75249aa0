// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Tables over light. A step of light is a part of an octave: all doubles of one exponent and the same first mantissa bits.
#pragma once

#include "Color/Grading.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <vector>

namespace LookColor
{
/** An entry for each step of light, from black to more than saturation makes of white. */
template <class EntryType>
class TLightTable
{
public:
	TLightTable() = default;

	/** @param MakeEntry takes the least light of a step and the least light behind it */
	template <class MakeEntryType>
	explicit TLightTable(MakeEntryType MakeEntry)
	{
		Entries.reserve(StepOf(2.0 * MostSaturation));
		double Begin = 0.0;
		while (Entries.size() < Entries.capacity())
		{
			const double End = std::bit_cast<double>((FirstStep + Entries.size() + 1) << StepShift);
			Entries.push_back(MakeEntry(Begin, End));
			Begin = End;
		}
	}

	EntryType At(double Light) const { return Entries[StepOf(Light > Darkest ? Light : Darkest)]; }

private:
	static constexpr int StepShift = std::numeric_limits<double>::digits - 1 - 8;

	/** What is darker belongs to the first step. */
	static constexpr double FirstLight = 0x1p-20;
	static constexpr std::uint64_t FirstStep = std::bit_cast<std::uint64_t>(FirstLight) >> StepShift;

	static constexpr std::uint64_t StepOf(double Light)
	{
		return (std::bit_cast<std::uint64_t>(Light) >> StepShift) - FirstStep;
	}

	/** FirstLight, but not known to compilers: they would make a jump of the comparison, which is often mispredicted. */
	double Darkest = FirstLight;
	std::vector<EntryType> Entries;
};
} // namespace LookColor
