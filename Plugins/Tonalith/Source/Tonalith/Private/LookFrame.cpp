// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LookFrame.h"

#include "Async/ParallelFor.h"
#include "Color/FrameGrader.h"
#include "TonalithImageDesc.h"

namespace
{
constexpr int64 BytesPerPixel = 4;

/** Copies pixels with red and blue exchanged. */
void CopyExchanged(const uint8* Source, uint8* Target, int64 PixelCount)
{
	for (const uint8* const End = Source + BytesPerPixel * PixelCount; Source != End; Source += BytesPerPixel)
	{
		*Target++ = Source[2];
		*Target++ = Source[1];
		*Target++ = Source[0];
		*Target++ = Source[3];
	}
}
} // namespace

FLookFrame::FLookFrame(const FTonalithAPI_ImageDesc& Image) : Size(Image.Width, Image.Height)
{
	const int64 RowBytes = BytesPerPixel * Size.X;
	Plain.SetNumUninitialized(static_cast<int32>(RowBytes * Size.Y));
	for (int32 Row = 0; Row < Size.Y; ++Row)
	{
		FMemory::Memcpy(Plain.GetData() + RowBytes * Row, Image.Pixels + BytesPerPixel * Row * Image.RowLength,
			static_cast<size_t>(RowBytes));
	}
	Graded = Plain;
}

void FLookFrame::Grade(const LookColor::IFrameGrader& Grader)
{
	const int64 RowBytes = BytesPerPixel * Size.X;
	ParallelFor(Size.Y,
		[&](int32 Row) {
			Grader.Grade(
				Plain.GetData() + RowBytes * Row, Graded.GetData() + RowBytes * Row, static_cast<size_t>(Size.X));
		});
}

TArray<uint8> FLookFrame::MakeTexture(float Line) const
{
	const int64 PlainPixels = FMath::RoundToInt32(FMath::Clamp(Line, 0.0f, 1.0f) * static_cast<float>(Size.X));
	TArray<uint8> Texture;
	Texture.SetNumUninitialized(Plain.Num());
	ParallelFor(Size.Y,
		[&](int32 Row)
		{
			const int64 Begin = BytesPerPixel * Size.X * Row;
			const int64 Middle = Begin + BytesPerPixel * PlainPixels;
			CopyExchanged(Plain.GetData() + Begin, Texture.GetData() + Begin, PlainPixels);
			CopyExchanged(Graded.GetData() + Middle, Texture.GetData() + Middle, Size.X - PlainPixels);
		});
	return Texture;
}
