// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/FrameGrader.h"

#include "Color/TransferFunction.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace LookColor
{
namespace
{
/** An entry of the table of results stands for this part of an octave of light. */
constexpr int StepBits = 8;
constexpr int StepShift = std::numeric_limits<double>::digits - 1 - StepBits;

/** Light below the table's counts as black; its end is more than saturation can make of white. */
constexpr double TableBegin = 0x1p-20;
constexpr double TableEnd = 2.0 * MostSaturation;

constexpr std::uint64_t StepOf(double Light)
{
	return std::bit_cast<std::uint64_t>(Light) >> StepShift;
}

constexpr std::uint64_t FirstStep = StepOf(TableBegin);
constexpr std::uint64_t StepCount = StepOf(TableEnd) - FirstStep;

/** The light at a place in a step, from 0 at its begin to 1 at its end; the first step is black but for its end. */
double LightInStep(std::uint64_t Step, double Place)
{
	const double Begin = std::bit_cast<double>((FirstStep + Step) << StepShift);
	const double End = std::bit_cast<double>((FirstStep + Step + 1) << StepShift);
	return Step == 0 && Place < 1.0 ? 0.0 : Begin + (End - Begin) * Place;
}
} // namespace

FFrameGrader::FFrameGrader(const FGrading& Grading)
{
	for (std::size_t Index = 0; Index < Channels.size(); ++Index)
	{
		FChannel& Channel = Channels[Index];
		const double Saturation = Grading[Index].Saturation;
		Channel.LuminanceFactor = 1.0 - Saturation;
		Channel.NextLight.fill(std::numeric_limits<double>::infinity());
		for (std::size_t Stored = 0; Stored < 256; ++Stored)
		{
			const double Light = Decoded(static_cast<double>(Stored) / 255.0);
			Channel.Luminance[Stored] = Light * LuminanceShares[Index];
			Channel.Light[Stored] = Light * Saturation;
		}
		for (std::size_t Result = 0; Result < 255; ++Result)
		{
			const double Rounded = (static_cast<double>(Result) + 0.5) / 255.0;
			Channel.NextLight[Result] = LeastLightFor(Grading[Index], Decoded(Rounded));
		}
		const std::vector<std::uint8_t> Begins = ResultsAt(Channel, 0.0);
		const std::vector<std::uint8_t> Ends = ResultsAt(Channel, 1.0);
		bIsSteep = bIsSteep || !std::equal(Begins.begin(), Begins.end(), Ends.begin(),
								   [](int Begin, int End) { return End - Begin <= 1; });
	}
	for (FChannel& Channel : Channels)
	{
		Channel.Results = ResultsAt(Channel, bIsSteep ? 0.0 : 0.5);
	}
}

std::vector<std::uint8_t> FFrameGrader::ResultsAt(const FChannel& Channel, double Place)
{
	std::vector<std::uint8_t> Results(StepCount);
	std::uint8_t Result = 0;
	for (std::uint64_t Step = 0; Step < StepCount; ++Step)
	{
		Result = LastResult(Channel, LightInStep(Step, Place), Result);
		Results[Step] = Result;
	}
	return Results;
}

std::uint8_t FFrameGrader::LastResult(const FChannel& Channel, double Light, std::uint8_t Result)
{
	while (Light >= Channel.NextLight[Result])
	{
		++Result;
	}
	return Result;
}

void FFrameGrader::Grade(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const
{
	const auto LookUp = [](const FChannel& Channel, double Light)
	{ return Channel.Results[StepOf(std::max(Light, TableBegin)) - FirstStep]; };
	const auto Search = [&LookUp](const FChannel& Channel, double Light)
	{ return LastResult(Channel, Light, LookUp(Channel, Light)); };
	bIsSteep ? GradeBy(Search, Source, Target, PixelCount) : GradeBy(LookUp, Source, Target, PixelCount);
}

template <class FindResult>
void FFrameGrader::GradeBy(
	FindResult Find, const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const
{
	const auto& [Red, Green, Blue] = Channels;
	for (const std::uint8_t* const End = Source + 4 * PixelCount; Source != End; Source += 4, Target += 4)
	{
		const double Luminance = Red.Luminance[Source[0]] + Green.Luminance[Source[1]] + Blue.Luminance[Source[2]];
		const auto Grade = [&](const FChannel& Channel, std::uint8_t Stored)
		{ return Find(Channel, Luminance * Channel.LuminanceFactor + Channel.Light[Stored]); };
		const std::array<std::uint8_t, 4> Pixel{
			Grade(Red, Source[0]), Grade(Green, Source[1]), Grade(Blue, Source[2]), Source[3]};
		std::copy(Pixel.begin(), Pixel.end(), Target);
	}
}
} // namespace LookColor
