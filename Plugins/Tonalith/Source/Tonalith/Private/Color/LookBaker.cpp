// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/LookBaker.h"

#include "Color/TransferFunction.h"

#include <algorithm>
#include <cmath>

namespace LookColor
{
namespace
{
/** The values of 8 bits lie on samples. */
constexpr std::size_t CurveSize = 255 * 16 + 1;
constexpr float MostError = 1.0f / 255.0f;

/** Curves are the controls' own, with so much of a straight line in them that they rise where those are level. */
constexpr double StraightShares[] = {0.02, 0.1, 0.3};

struct FLook
{
	const FGrading& Grading;
	const FLookTable* Table;

	FTriple operator()(const FTriple& Color) const
	{
		std::array<double, 3> Light;
		double Luminance = 0.0;
		for (std::size_t Channel = 0; Channel < Light.size(); ++Channel)
		{
			Light[Channel] = Decoded(static_cast<double>(Color[Channel]));
			Luminance += Light[Channel] * LuminanceShares[Channel];
		}
		FTriple Graded;
		for (std::size_t Channel = 0; Channel < Light.size(); ++Channel)
		{
			const double Mixed = Luminance + (Light[Channel] - Luminance) * Grading[Channel].Saturation;
			Graded[Channel] = GradedValue(Grading[Channel], std::max(Mixed, 0.0));
		}
		return Table ? Applied(*Table, Graded) : Graded;
	}
};

/** @param CurveOf takes a channel and a value */
template <class CurveOfType>
std::vector<FTriple> MakeCurves(CurveOfType CurveOf)
{
	std::vector<FTriple> Curves(CurveSize);
	for (std::size_t Sample = 0; Sample < CurveSize; ++Sample)
	{
		for (std::size_t Channel = 0; Channel < Curves[Sample].size(); ++Channel)
		{
			Curves[Sample][Channel] =
				static_cast<float>(CurveOf(Channel, static_cast<double>(Sample) / (CurveSize - 1)));
		}
	}
	return Curves;
}

/** From 0 to 1, rising. */
std::vector<FTriple> MakeCurves(const FGrading& Grading, double StraightShare)
{
	const auto Curve = [&](std::size_t Channel, double Value)
	{ return GradedValue(Grading[Channel], Decoded(Value)) * (1.0 - StraightShare) + Value * StraightShare; };
	return MakeCurves(
		[&](std::size_t Channel, double Value)
		{
			const double Begin = Curve(Channel, 0.0);
			return (Curve(Channel, Value) - Begin) / (Curve(Channel, 1.0) - Begin);
		});
}

/** The value that the table's curves turn into the given one. */
float Unshaped(const FLookTable& Table, std::size_t Channel, float Value)
{
	if (Table.Shaper.empty())
	{
		return Value;
	}
	const auto Next = std::upper_bound(Table.Shaper.begin() + 1, Table.Shaper.end() - 1, Value,
		[Channel](float Left, const FTriple& Right) { return Left < Right[Channel]; });
	const float Begin = Next[-1][Channel];
	const float Share = std::clamp((Value - Begin) / ((*Next)[Channel] - Begin), 0.0f, 1.0f);
	return (static_cast<float>(Next - Table.Shaper.begin() - 1) + Share) / static_cast<float>(CurveSize - 1);
}

FLookTable Made(const FLook& Look, std::vector<FTriple> Curves, std::size_t Size)
{
	FLookTable Table;
	Table.Shaper = std::move(Curves);
	Table.CubeSize = Size;
	Table.Cube.reserve(Size * Size * Size);
	std::vector<FTriple> Axes(Size);
	for (std::size_t Sample = 0; Sample < Size; ++Sample)
	{
		for (std::size_t Channel = 0; Channel < 3; ++Channel)
		{
			Axes[Sample][Channel] = Unshaped(Table, Channel, static_cast<float>(Sample) / static_cast<float>(Size - 1));
		}
	}
	for (const FTriple& Blue : Axes)
	{
		for (const FTriple& Green : Axes)
		{
			for (const FTriple& Red : Axes)
			{
				Table.Cube.push_back(Look({Red[0], Green[1], Blue[2]}));
			}
		}
	}
	return Table;
}

/** For a look that mixes no channels: all that stands before the cube as curves, and the cube by itself. */
FLookTable MadeApart(const FGrading& Grading, const FLookTable* Table, std::size_t Size)
{
	FLookTable Cube = Table ? *Table : FLookTable();
	const FTableDomain Domain = Cube.CubeDomain;
	std::vector<FTriple> Curves = MakeCurves(
		[&](std::size_t Channel, double Value)
		{
			const float Shown = Shaped(Cube, Channel, GradedValue(Grading[Channel], Decoded(Value)));
			return std::clamp(
				(Shown - Domain.Begin[Channel]) / (Domain.End[Channel] - Domain.Begin[Channel]), 0.0f, 1.0f);
		});
	Cube.Shaper.clear();
	Cube.CubeDomain = {};
	FLookTable Result = Made(FLook{FGrading(), &Cube}, {}, Size);
	Result.Shaper = std::move(Curves);
	return Result;
}

/** How far the table is off, over all greys of 8 bits and colors all over the cube. */
float ErrorOf(const FLookTable& Table, const FLook& Look)
{
	float Error = 0.0f;
	const auto Compare = [&](const FTriple& Color)
	{
		const FTriple Wanted = Look(Color);
		const FTriple Given = Applied(Table, Color);
		for (std::size_t Channel = 0; Channel < Color.size(); ++Channel)
		{
			Error = std::max(Error, std::abs(Wanted[Channel] - Given[Channel]));
		}
	};
	for (int Grey = 0; Grey <= 255; ++Grey)
	{
		const float Value = static_cast<float>(Grey) / 255.0f;
		Compare({Value, Value, Value});
	}
	constexpr int Places = 15;
	for (int Place = 0; Place < Places * Places * Places; ++Place)
	{
		Compare({static_cast<float>(Place % Places) / (Places - 1),
			static_cast<float>(Place / Places % Places) / (Places - 1),
			static_cast<float>(Place / Places / Places) / (Places - 1)});
	}
	return Error;
}
} // namespace

FLookTable Baked(const FGrading& Grading, const FLookTable* Table, std::size_t Size)
{
	const FLook Look{Grading, Table};
	FLookTable Best = Made(Look, {}, Size);
	float BestError = ErrorOf(Best, Look);
	const auto Try = [&](FLookTable&& Other)
	{
		const float Error = ErrorOf(Other, Look);
		if (Error < BestError)
		{
			Best = std::move(Other);
			BestError = Error;
		}
	};
	if (BestError > MostError && !MixesChannels(Grading))
	{
		Try(MadeApart(Grading, Table, Size));
	}
	for (const double StraightShare : StraightShares)
	{
		if (BestError > MostError)
		{
			Try(Made(Look, MakeCurves(Grading, StraightShare), Size));
		}
	}
	return Best;
}
} // namespace LookColor
