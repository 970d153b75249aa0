// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "CapturedFrame.h"

TArray<uint8> FrameFromPixels(const TArray<FColor>& Pixels)
{
	constexpr uint32 Green = 0x0000FF00;
	constexpr uint32 Opaque = 0xFF000000;
	TArray<uint8> Frame;
	Frame.SetNumUninitialized(Pixels.Num() * 4);
	uint8* Target = Frame.GetData();
	// Held outside the loop: as far as a compiler knows, the writes below could move the array's end.
	const FColor* const End = Pixels.GetData() + Pixels.Num();
	for (const FColor* Pixel = Pixels.GetData(); Pixel != End; ++Pixel, Target += 4)
	{
		// Whole words: byte by byte this would run well below the speed of memory.
		const uint32 Word = Pixel->DWColor();
		const uint32 Swapped = ((Word & 0xFF) << 16) | ((Word >> 16) & 0xFF) | (Word & Green) | Opaque;
		FMemory::Memcpy(Target, &Swapped, sizeof Swapped);
	}
	return Frame;
}
