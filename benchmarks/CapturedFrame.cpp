// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Captured frames: 3840 x 2160 pixels to red, green, blue and alpha, into a buffer that is made anew each time.
#include "CapturedFrame.h"
#include "Subject.h"

#include <memory>

namespace
{
TArray<FColor> pixels()
{
	TArray<FColor> frame;
	frame.SetNumUninitialized(3840 * 2160);
	for (int32 index = 0; index < frame.Num(); ++index)
	{
		frame[index] =
			FColor(static_cast<uint8>(index), static_cast<uint8>(index >> 8), static_cast<uint8>(index >> 16));
	}
	return frame;
}

void convert(benchmark::State& state)
{
	const TArray<FColor> frame = pixels();
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(FrameFromPixels(frame).GetData());
	}
}

void copy(benchmark::State& state)
{
	const TArray<FColor> frame = pixels();
	const size_t size = static_cast<size_t>(frame.Num()) * sizeof(FColor);
	for (auto _ : state)
	{
		const std::unique_ptr<uint8[]> target(new uint8[size]);
		std::memcpy(target.get(), frame.GetData(), size);
		benchmark::DoNotOptimize(target.get());
	}
}

const bool added = Bench::add({"captured frame to RGBA, 3840 x 2160", &convert, &copy, 1.2});
} // namespace
