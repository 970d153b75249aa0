// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/TableGrader.h"

#include "Color/TransferFunction.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace LookColor
{
namespace
{
/** The field of a channel, and what stands for 1 in a sample, so that the weighted sum of 1 is 255 times 2^13. */
constexpr int FieldBits = 21;
constexpr int SumShift = 13;
constexpr double Whole = 255.0 * (1 << SumShift) / FPackedCube::WholeWeight;

std::uint64_t Packed(const FTriple& Color)
{
	std::uint64_t Fields = 0;
	for (std::size_t Channel = 0; Channel < Color.size(); ++Channel)
	{
		const double Value = std::clamp(static_cast<double>(Color[Channel]), 0.0, 1.0);
		Fields |= static_cast<std::uint64_t>(std::lround(Value * Whole)) << (FieldBits * Channel);
	}
	return Fields;
}

/** Of FPlace::WeightAndStride. */
constexpr int WeightShift = 16;
constexpr std::uint32_t StrideMask = (1u << WeightShift) - 1;

/** Without a jump, which would be mispredicted every other time. */
void PutGreaterFirst(std::uint32_t& A, std::uint32_t& B)
{
	const std::uint32_t Greater = A > B ? A : B;
	B = A > B ? B : A;
	A = Greater;
}

std::uint8_t Stored(float Value)
{
	return static_cast<std::uint8_t>(std::lround(std::clamp(Value, 0.0f, 1.0f) * 255.0f));
}
} // namespace

FPackedCube::FPackedCube(const FLookTable& Table)
	: Domain(Table.CubeDomain), Size(std::max(Table.CubeSize, LeastTableSize))
{
	const auto Side = static_cast<std::uint32_t>(Size);
	Strides = {1, Side, Side * Side};
	Samples.reserve(Size * Size * Size);
	for (const FTriple& Color : Table.Cube)
	{
		bIsExact = bIsExact &&
				   std::all_of(Color.begin(), Color.end(), [](float Value) { return Value >= 0.0f && Value <= 1.0f; });
		Samples.push_back(Packed(Color));
	}
	for (std::size_t Corner = 0; Table.Cube.empty() && Corner < 8; ++Corner)
	{
		Samples.push_back(Packed({(Corner & 1) ? 1.0f : 0.0f, (Corner & 2) ? 1.0f : 0.0f, (Corner & 4) ? 1.0f : 0.0f}));
	}
}

FPackedCube::FPlace FPackedCube::PlaceOf(std::size_t Channel, float Value) const
{
	const auto [Sample, Share] = PlaceInTable(Value, Domain.Begin[Channel], Domain.End[Channel], Size);
	const auto Weight = static_cast<std::uint32_t>(std::lround(Share * static_cast<float>(WholeWeight)));
	return {static_cast<std::uint32_t>(Sample) * Strides[Channel], Weight << WeightShift | Strides[Channel]};
}

std::uint32_t FPackedCube::ColorAt(const std::array<FPlace, 3>& Places) const
{
	// The way from the near corner to the far one leads along the axis of the greatest weight first.
	std::uint32_t First = Places[0].WeightAndStride;
	std::uint32_t Second = Places[1].WeightAndStride;
	std::uint32_t Third = Places[2].WeightAndStride;
	PutGreaterFirst(First, Second);
	PutGreaterFirst(First, Third);
	PutGreaterFirst(Second, Third);
	const std::uint64_t* Sample = Samples.data() + Places[0].Offset + Places[1].Offset + Places[2].Offset;
	constexpr std::uint64_t Half = 1u << (SumShift - 1);
	std::uint64_t Sum = Half | Half << FieldBits | Half << (2 * FieldBits);
	Sum += *Sample * (WholeWeight - (First >> WeightShift));
	Sample += First & StrideMask;
	Sum += *Sample * ((First >> WeightShift) - (Second >> WeightShift));
	Sample += Second & StrideMask;
	Sum += *Sample * ((Second >> WeightShift) - (Third >> WeightShift));
	Sample += Third & StrideMask;
	Sum += *Sample * (Third >> WeightShift);
	const auto Byte = [Sum](int Channel)
	{ return static_cast<std::uint32_t>(Sum >> (SumShift + FieldBits * Channel) & 0xFF) << (8 * Channel); };
	return Byte(0) | Byte(1) | Byte(2);
}

FTableGrader::FTableGrader(const FGrading& InGrading, const FLookTable& InTable, const FPackedCube& InCube)
	: Grading(InGrading), Table(InTable), Cube(InCube), Mixer(InGrading)
{
	for (std::size_t Channel = 0; Channel < Grading.size(); ++Channel)
	{
		const auto PlaceFor = [&, Channel](double Light)
		{ return Cube.PlaceOf(Channel, Shaped(Table, Channel, GradedValue(Grading[Channel], Light))); };
		const double FirstLit = LeastLightFor(Grading[Channel], 0.0);
		Darkest[Channel] = std::isfinite(FirstLit) ? FirstLit : 0.0;
		// Black is the first step's begin, and most of what is in that step.
		PlacesByLight[Channel] = TLightTable<FPlace>([&](double Begin, double End)
			{ return PlaceFor(Darkest[Channel] + (Begin > 0.0 ? (Begin + End) / 2.0 : 0.0)); });
		for (std::size_t Value = 0; Value < PlacesByValue[Channel].size(); ++Value)
		{
			PlacesByValue[Channel][Value] = PlaceFor(Decoded(static_cast<double>(Value) / 255.0));
		}
	}
}

void FTableGrader::Grade(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const
{
	if (!Cube.IsExact())
	{
		GradeByFormulas(Source, Target, PixelCount);
	}
	else if (MixesChannels(Grading))
	{
		const auto ByLight = [this](const std::uint8_t* Pixel) -> FPlaces
		{
			const auto [Red, Green, Blue] = Mixer.Mix(Pixel);
			return {PlacesByLight[0].At(Red - Darkest[0]), PlacesByLight[1].At(Green - Darkest[1]),
				PlacesByLight[2].At(Blue - Darkest[2])};
		};
		GradeBy(ByLight, Source, Target, PixelCount);
	}
	else
	{
		const auto ByValue = [this](const std::uint8_t* Pixel) -> FPlaces {
			return {PlacesByValue[0][Pixel[0]], PlacesByValue[1][Pixel[1]], PlacesByValue[2][Pixel[2]]};
		};
		GradeBy(ByValue, Source, Target, PixelCount);
	}
}

template <class FindPlaces>
void FTableGrader::GradeBy(
	FindPlaces Find, const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const
{
	// Two short loops let the processor work ahead farther than one long one does.
	std::array<FPlaces, 256> Places;
	while (PixelCount > 0)
	{
		const std::size_t Count = std::min(PixelCount, Places.size());
		for (std::size_t Index = 0; Index < Count; ++Index)
		{
			Places[Index] = Find(Source + 4 * Index);
		}
		for (std::size_t Index = 0; Index < Count; ++Index)
		{
			const std::uint32_t Color = Cube.ColorAt(Places[Index]);
			const std::uint32_t Pixel = Color | static_cast<std::uint32_t>(Source[4 * Index + 3]) << 24;
			std::memcpy(Target + 4 * Index, &Pixel, sizeof Pixel);
		}
		Source += 4 * Count;
		Target += 4 * Count;
		PixelCount -= Count;
	}
}

void FTableGrader::GradeByFormulas(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const
{
	for (const std::uint8_t* const End = Source + 4 * PixelCount; Source != End; Source += 4, Target += 4)
	{
		const std::array<double, 3> Light = Mixer.Mix(Source);
		FTriple Color;
		for (std::size_t Channel = 0; Channel < Color.size(); ++Channel)
		{
			Color[Channel] = GradedValue(Grading[Channel], std::max(Light[Channel], 0.0));
		}
		const auto [Red, Green, Blue] = Applied(Table, Color);
		const std::uint8_t Pixel[4] = {Stored(Red), Stored(Green), Stored(Blue), Source[3]};
		std::memcpy(Target, Pixel, sizeof Pixel);
	}
}
} // namespace LookColor
