// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/LookBaker.h"

#include "Color/TransferFunction.h"

#include <algorithm>
#include <cmath>

namespace LookColor
{
namespace
{
constexpr std::size_t CurveSize = 4096;
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

std::vector<FTriple> MakeCurves(const FGrading& Grading, double StraightShare)
{
	std::vector<FTriple> Curves(CurveSize);
	for (std::size_t Channel = 0; Channel < Grading.size(); ++Channel)
	{
		const auto Curve = [&](double Value)
		{ return GradedValue(Grading[Channel], Decoded(Value)) * (1.0 - StraightShare) + Value * StraightShare; };
		const double Begin = Curve(0.0);
		const double End = Curve(1.0);
		for (std::size_t Sample = 0; Sample < CurveSize; ++Sample)
		{
			const double Value = static_cast<double>(Sample) / (CurveSize - 1);
			Curves[Sample][Channel] = static_cast<float>((Curve(Value) - Begin) / (End - Begin));
		}
	}
	return Curves;
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
	for (const double StraightShare : StraightShares)
	{
		if (BestError <= MostError)
		{
			break;
		}
		FLookTable Other = Made(Look, MakeCurves(Grading, StraightShare), Size);
		const float Error = ErrorOf(Other, Look);
		if (Error < BestError)
		{
			Best = std::move(Other);
			BestError = Error;
		}
	}
	return Best;
}
} // namespace LookColor
