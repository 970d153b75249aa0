// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the benchmarks of looks on pictures share, natively and under Wine: frames, a look, and loops that apply it.
#pragma once

#include "Color/FrameGrader.h"
#include "Color/LookTable.h"
#include "Subject.h"

#include <cstdint>
#include <vector>

namespace Bench
{
/** Pixels as red, green, blue and alpha; rows without gaps. */
struct Frame
{
	size_t width;
	size_t height;
	std::vector<uint8_t> pixels;
};

/** 1920 x 1080: neighbours are alike, as in pictures of skies and walls. */
const Frame& smoothFrame();

/** 1920 x 1080: no pixel tells about the next. */
const Frame& noisyFrame();

/** A look with all controls set, saturation too. */
LookColor::FGrading busyLook();

/** That look as a plain cube, for programs that know no controls. */
LookColor::FLookTable busyTable(size_t size);

/** Grades the frame over and over, whole, on the loop's thread. */
void gradeFrame(benchmark::State& state, const LookColor::IFrameGrader& grader, const Frame& frame);

/** The look's controls on a smooth and on a noisy frame. */
void controlsOnSmooth(benchmark::State& state);
void controlsOnNoise(benchmark::State& state);

/** The look's table of 33 samples a side, without controls, on either. */
void tableOnSmooth(benchmark::State& state);
void tableOnNoise(benchmark::State& state);

/** What is made once for a look before the first pixel. */
void controlsSetUp(benchmark::State& state);
} // namespace Bench
