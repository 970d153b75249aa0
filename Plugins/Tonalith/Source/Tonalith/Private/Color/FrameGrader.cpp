// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/FrameGrader.h"

#include "Color/TransferFunction.h"

#include <cstring>

namespace LookColor
{
namespace
{
/** The result for a light, which is the given one or a later one. */
std::uint8_t LastResult(const std::array<double, 256>& NextLight, double Light, std::uint8_t Result)
{
	while (Light >= NextLight[Result])
	{
		++Result;
	}
	return Result;
}
} // namespace

FControlsGrader::FControlsGrader(const FGrading& Grading) : Mixer(Grading)
{
	for (std::size_t Index = 0; Index < Channels.size(); ++Index)
	{
		auto& NextLight = Channels[Index].NextLight;
		NextLight.fill(std::numeric_limits<double>::infinity());
		for (std::size_t Result = 0; Result < 255; ++Result)
		{
			const double Rounded = (static_cast<double>(Result) + 0.5) / 255.0;
			NextLight[Result] = LeastLightFor(Grading[Index], Decoded(Rounded));
		}
		std::uint8_t Result = 0;
		const auto FirstResult = [&](double Begin, double End)
		{
			Result = LastResult(NextLight, Begin, Result);
			bIsAnySteep = bIsAnySteep || LastResult(NextLight, End, Result) > Result + 1;
			return Result;
		};
		Channels[Index].FirstResults = TLightTable<std::uint8_t>(FirstResult);
	}
}

void FControlsGrader::Grade(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const
{
	bIsAnySteep ? GradeAs<true>(Source, Target, PixelCount) : GradeAs<false>(Source, Target, PixelCount);
}

template <bool bIsSteep>
void FControlsGrader::GradeAs(const std::uint8_t* Source, std::uint8_t* Target, std::size_t PixelCount) const
{
	const auto ResultFor = [](const FChannel& Channel, double Light)
	{
		const std::uint8_t First = Channel.FirstResults.At(Light);
		return bIsSteep ? LastResult(Channel.NextLight, Light, First)
						: static_cast<std::uint8_t>(First + (Light >= Channel.NextLight[First]));
	};
	for (const std::uint8_t* const End = Source + 4 * PixelCount; Source != End; Source += 4, Target += 4)
	{
		const auto [Red, Green, Blue] = Mixer.Mix(Source);
		// One word: byte by byte, a target that may be the source has to be written in order.
		const std::uint8_t Pixel[4] = {
			ResultFor(Channels[0], Red), ResultFor(Channels[1], Green), ResultFor(Channels[2], Blue), Source[3]};
		std::memcpy(Target, Pixel, sizeof Pixel);
	}
}
} // namespace LookColor
