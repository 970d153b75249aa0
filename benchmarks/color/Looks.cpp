// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Looks.h"

#include "Color/LookBaker.h"
#include "Color/TableGrader.h"

#include <random>

namespace Bench
{
namespace
{
template <class ByteAt>
Frame made(ByteAt byteAt)
{
	Frame frame{1920, 1080, {}};
	frame.pixels.resize(4 * frame.width * frame.height);
	for (size_t index = 0; index < frame.pixels.size(); ++index)
	{
		frame.pixels[index] = byteAt(index % 4, index / 4 % frame.width, index / 4 / frame.width);
	}
	return frame;
}

void tableOn(benchmark::State& state, const Frame& frame)
{
	const LookColor::FLookTable table = busyTable(33);
	const LookColor::FPackedCube cube(table);
	gradeFrame(state, LookColor::FTableGrader({}, table, cube), frame);
}
} // namespace

const Frame& smoothFrame()
{
	static const Frame frame = made(
		[](size_t channel, size_t x, size_t y)
		{
			const size_t values[] = {x * 255 / 1919, y * 255 / 1079, (x + y) * 255 / 2998, 255};
			return static_cast<uint8_t>(values[channel]);
		});
	return frame;
}

const Frame& noisyFrame()
{
	static const Frame frame = made(
		[random = std::mt19937(1)](size_t, size_t, size_t) mutable { return static_cast<uint8_t>(random() >> 24); });
	return frame;
}

LookColor::FGrading busyLook()
{
	return {{{1.2, 1.1, 0.95, 1.1, 0.01}, {1.25, 1.15, 1.0, 1.0, 0.0}, {1.15, 1.1, 1.05, 0.9, 0.02}}};
}

LookColor::FLookTable busyTable(size_t size)
{
	// Baked tables may have curves in front; these are sampled along.
	const LookColor::FLookTable baked = LookColor::Baked(busyLook(), nullptr, size);
	LookColor::FLookTable plain;
	plain.CubeSize = size;
	const auto value = [size](size_t sample) { return static_cast<float>(sample) / static_cast<float>(size - 1); };
	for (size_t index = 0; index < size * size * size; ++index)
	{
		plain.Cube.push_back(
			LookColor::Applied(baked, {value(index % size), value(index / size % size), value(index / size / size)}));
	}
	return plain;
}

void gradeFrame(benchmark::State& state, const LookColor::IFrameGrader& grader, const Frame& frame)
{
	std::vector<uint8_t> target(frame.pixels.size());
	for (auto _ : state)
	{
		grader.Grade(frame.pixels.data(), target.data(), frame.width * frame.height);
		benchmark::DoNotOptimize(target.data());
		benchmark::ClobberMemory();
	}
}

void controlsOnSmooth(benchmark::State& state)
{
	gradeFrame(state, LookColor::FControlsGrader(busyLook()), smoothFrame());
}

void controlsOnNoise(benchmark::State& state)
{
	gradeFrame(state, LookColor::FControlsGrader(busyLook()), noisyFrame());
}

void tableOnSmooth(benchmark::State& state)
{
	tableOn(state, smoothFrame());
}

void tableOnNoise(benchmark::State& state)
{
	tableOn(state, noisyFrame());
}

void controlsSetUp(benchmark::State& state)
{
	for (auto _ : state)
	{
		const LookColor::FControlsGrader grader(busyLook());
		benchmark::DoNotOptimize(&grader);
	}
}
} // namespace Bench
