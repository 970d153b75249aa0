// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A look's controls and its table on pictures of 1920 x 1080, natively, beside FFmpeg with the look as a table.
#include "Color/TableGrader.h"
#include "Peer.h"

#include <thread>

namespace
{
using Bench::Frame;

template <const Frame& (*frame)()>
void peer(benchmark::State& state)
{
	Bench::peerOn(state, Bench::busyTable(33), frame());
}

void onTwoThreads(benchmark::State& state)
{
	const LookColor::FControlsGrader grader(Bench::busyLook());
	const Frame& frame = Bench::smoothFrame();
	std::vector<uint8_t> target(frame.pixels.size());
	const size_t half = frame.width * frame.height / 2;
	for (auto _ : state)
	{
		std::thread other([&] { grader.Grade(frame.pixels.data(), target.data(), half); });
		grader.Grade(frame.pixels.data() + 4 * half, target.data() + 4 * half, half);
		other.join();
		benchmark::ClobberMemory();
	}
}

void onFourTimesThePixels(benchmark::State& state)
{
	Frame large{3840, 2160, {}};
	for (int quarter = 0; quarter < 4; ++quarter)
	{
		large.pixels.insert(large.pixels.end(), Bench::smoothFrame().pixels.begin(), Bench::smoothFrame().pixels.end());
	}
	Bench::gradeFrame(state, LookColor::FControlsGrader(Bench::busyLook()), large);
}

void fourTimes(benchmark::State& state)
{
	const LookColor::FControlsGrader grader(Bench::busyLook());
	const Frame& frame = Bench::smoothFrame();
	std::vector<uint8_t> target(frame.pixels.size());
	for (auto _ : state)
	{
		for (int quarter = 0; quarter < 4; ++quarter)
		{
			grader.Grade(frame.pixels.data(), target.data(), frame.width * frame.height);
			benchmark::ClobberMemory();
		}
	}
}

void controlsAndTable(benchmark::State& state)
{
	const LookColor::FLookTable table = Bench::busyTable(33);
	const LookColor::FPackedCube cube(table);
	Bench::gradeFrame(state, LookColor::FTableGrader(Bench::busyLook(), table, cube), Bench::smoothFrame());
}

const bool added =
	Bench::add({"look's controls, smooth frame, beside FFmpeg", &Bench::controlsOnSmooth, &peer<&Bench::smoothFrame>,
		0.25, true}) &&
	Bench::add(
		{"look's controls, noise, beside FFmpeg", &Bench::controlsOnNoise, &peer<&Bench::noisyFrame>, 0.25, true}) &&
	Bench::add({"look's controls on two threads beside one", &onTwoThreads, &Bench::controlsOnSmooth, 0.59}) &&
	Bench::add({"look's controls, 3840 x 2160 beside four quarters", &onFourTimesThePixels, &fourTimes, 1.15}) &&
	Bench::add({"look's controls set up", &Bench::controlsSetUp}) &&
	Bench::add(
		{"look's table, smooth frame, beside FFmpeg", &Bench::tableOnSmooth, &peer<&Bench::smoothFrame>, 0.33, true}) &&
	Bench::add({"look's table, noise, beside FFmpeg", &Bench::tableOnNoise, &peer<&Bench::noisyFrame>, 0.33, true}) &&
	Bench::add({"look's controls and table beside its table", &controlsAndTable, &Bench::tableOnSmooth, 1.3});
} // namespace
