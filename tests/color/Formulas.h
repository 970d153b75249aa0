// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What looks do to a color, by formulas of the tests' own, in double; and looks and tables to try it on.
#pragma once

#include "Color/Grading.h"
#include "Color/LookTable.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <random>
#include <utility>

using FColor3 = std::array<double, 3>;

/** Draws the same numbers in each run. */
class FDraw
{
public:
	double From(double begin, double end)
	{
		return begin + (end - begin) * static_cast<double>(engine() >> 8) / 0x1p24;
	}
	size_t Below(size_t end) { return engine() % end; }

private:
	std::mt19937 engine{18};
};

/** The controls alone, over values as displays take them. */
inline FColor3 controlled(const LookColor::FGrading& grading, const FColor3& color)
{
	FColor3 light;
	std::transform(color.begin(), color.end(), light.begin(),
		[](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); });
	const double luminance = 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
	FColor3 result;
	for (size_t i = 0; i < 3; ++i)
	{
		const auto& [saturation, contrast, gamma, gain, offset] = grading[i];
		const double mixed = std::max(luminance + (light[i] - luminance) * saturation, 0.0);
		const double lit = gain * std::pow(0.18 * std::pow(mixed / 0.18, contrast), 1 / gamma) + offset;
		const double shown = std::clamp(lit, 0.0, 1.0);
		result[i] = shown <= 0.0031308 ? shown * 12.92 : 1.055 * std::pow(shown, 1 / 2.4) - 0.055;
	}
	return result;
}

/** The table alone. Through the cube the way leads along the axes, that of the biggest share first. */
inline FColor3 looked(const LookColor::FLookTable& table, FColor3 color)
{
	const auto place = [](double value, double begin, double end, size_t size)
	{
		const double at = std::clamp((value - begin) / (end - begin), 0.0, 1.0) * static_cast<double>(size - 1);
		const double first = std::min(std::floor(at), static_cast<double>(size - 2));
		return std::pair(static_cast<size_t>(first), at - first);
	};
	for (size_t i = 0; i < 3 && !table.Shaper.empty(); ++i)
	{
		const auto [at, share] =
			place(color[i], table.ShaperDomain.Begin[i], table.ShaperDomain.End[i], table.Shaper.size());
		color[i] = table.Shaper[at][i] + share * (double(table.Shaper[at + 1][i]) - table.Shaper[at][i]);
	}
	if (table.Cube.empty())
	{
		return color;
	}
	std::array<std::pair<double, size_t>, 3> ways;
	size_t index = 0;
	for (size_t i = 0, stride = 1; i < 3; ++i, stride *= table.CubeSize)
	{
		const auto [at, share] = place(color[i], table.CubeDomain.Begin[i], table.CubeDomain.End[i], table.CubeSize);
		index += at * stride;
		ways[i] = {share, stride};
	}
	std::sort(ways.begin(), ways.end(), std::greater());
	const LookColor::FTriple* sample = &table.Cube[index];
	FColor3 sum{(*sample)[0], (*sample)[1], (*sample)[2]};
	for (const auto& [share, stride] : ways)
	{
		for (size_t i = 0; i < 3; ++i)
		{
			sum[i] += share * (double(sample[stride][i]) - (*sample)[i]);
		}
		sample += stride;
	}
	return sum;
}

/** The most that a channel differs between two colors as displays show them, in steps of 8 bits. */
inline double stepsBetween(const FColor3& one, const FColor3& other)
{
	double most = 0;
	for (size_t i = 0; i < 3; ++i)
	{
		most = std::max(most, 255 * std::abs(std::clamp(one[i], 0.0, 1.0) - std::clamp(other[i], 0.0, 1.0)));
	}
	return most;
}

/** Controls within what the window's rows offer; three in four looks leave saturation alone. */
inline LookColor::FGrading drawControls(FDraw& draw)
{
	LookColor::FGrading grading;
	const double saturation = draw.Below(4) ? 1.0 : draw.From(0, 2);
	for (LookColor::FChannelGrading& channel : grading)
	{
		channel = {saturation, draw.From(0.5, 2), draw.From(0.5, 2), draw.From(0.5, 2), draw.From(-0.25, 0.25)};
	}
	return grading;
}

/** A gentle table, as graders make them. @param least and @param most of its values */
inline LookColor::FLookTable drawTable(FDraw& draw, size_t shaperSize, size_t cubeSize, double least, double most)
{
	LookColor::FLookTable table;
	const double grain = 0.1 / double(std::max({shaperSize, cubeSize, size_t(1)}));
	const auto color = [&](FColor3 place)
	{
		LookColor::FTriple sample;
		for (size_t i = 0; i < 3; ++i)
		{
			const double bent = std::clamp(
				0.8 * place[i] + 0.15 * place[(i + 1) % 3] + 0.05 * std::sin(5 * place[i]) + grain * draw.From(-1, 1),
				0.0, 1.0);
			sample[i] = static_cast<float>(least + (most - least) * bent);
		}
		return sample;
	};
	const auto share = [](size_t sample, size_t size) { return double(sample) / double(size - 1); };
	for (size_t i = 0; i < shaperSize; ++i)
	{
		table.Shaper.push_back(color({share(i, shaperSize), share(i, shaperSize), share(i, shaperSize)}));
	}
	table.CubeSize = cubeSize;
	for (size_t i = 0; i < cubeSize * cubeSize * cubeSize; ++i)
	{
		table.Cube.push_back(color({share(i % cubeSize, cubeSize), share(i / cubeSize % cubeSize, cubeSize),
			share(i / cubeSize / cubeSize, cubeSize)}));
	}
	return table;
}
