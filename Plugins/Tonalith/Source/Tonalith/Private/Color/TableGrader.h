// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks with a lookup table applied to pictures of 8 bits a channel.
#pragma once

#include "Color/FrameGrader.h"
#include "Color/LookTable.h"

#include <optional>

namespace LookColor
{
/**
 * A table's cube in the form in which pixels are looked up fastest. Made once for a table. A table without cube gets one
 * that changes nothing.
 */
class FPackedCube
{
public:
	explicit FPackedCube(const FLookTable& Table);

	/** Weights of a cell's corners add up to this: a multiple of 255, so that the steps of 8 bits are met exactly. */
	static constexpr std::uint32_t WholeWeight = 1020;

	/** Where a color lies along one axis of the cube: at a first sample, and with a weight of the second. */
	struct FPlace
	{
		/** Samples from the cube's begin to the first. */
		std::uint32_t Offset;

		/** The weight above, below it the samples from the first to the second: in one word, they are sorted together. */
		std::uint32_t WeightAndStride;
	};

	/** @param Value between the curves and the cube */
	FPlace PlaceOf(std::size_t Channel, float Value) const;

	/** Red, green and blue as the lower three bytes. */
	std::uint32_t ColorAt(const std::array<FPlace, 3>& Places) const;

	/** Whether all values are from 0 to 1; else this form does not do. */
	bool IsExact() const { return bIsExact; }

private:
	FTableDomain Domain;
	std::array<std::uint32_t, 3> Strides;
	std::size_t Size;
	bool bIsExact = true;

	/** Three fields of 21 bits each, in which the weighted sums of the corners have room. */
	std::vector<std::uint64_t> Samples;
};

/** The controls of a look, then its table. A channel is off by one of 255 at most from what the formulas give. */
class FTableGrader final : public IFrameGrader
{
public:
	/** Both must outlive the grader. */
	FTableGrader(const FGrading& Grading, const FLookTable& Table, const FPackedCube& Cube);

	virtual void Grade(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const override;

private:
	using FPlace = FPackedCube::FPlace;
	using FPlaces = std::array<FPlace, 3>;

	template <class FindPlaces>
	void GradeBy(FindPlaces Find, const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const;

	/** The long way: for values that the packed cube cannot hold. */
	void GradeByFormulas(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const;

	const FGrading Grading;
	const FLookTable& Table;
	const FPackedCube& Cube;
	FLightMixer Mixer;

	/** The light up to which all is black. */
	std::array<double, 3> Darkest;

	/** Over the light beyond that: values change fastest right there. */
	std::array<TLightTable<FPlace>, 3> PlacesByLight;

	/** For each stored value; used without saturation, when channels do not mix. */
	std::array<std::array<FPlace, 256>, 3> PlacesByValue;
};
} // namespace LookColor
