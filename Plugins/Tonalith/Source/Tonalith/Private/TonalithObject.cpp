// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithObject.h"

#include "TonalithImageDesc.h"

namespace
{
constexpr int32 BytesPerPixel = 4;

bool IsConsistent(const FTonalithAPI_ImageDesc& Image)
{
	return Image.Version == 1 && Image.Pixels && Image.Width > 0 && Image.Height > 0 && Image.RowLength >= Image.Width;
}
} // namespace

void UTonalithObject::DisplayUserInterface(FTonalithAPI_ImageDesc& Image)
{
	if (!IsConsistent(Image))
	{
		UE_LOG(LogTemp, Warning, TEXT("DisplayUserInterface: the picture for %s is refused"), *GetName());
		return;
	}
	const int32 RowSize = Image.Width * BytesPerPixel;
	Picture.SetNumUninitialized(RowSize * Image.Height);
	PictureSize = FIntPoint(Image.Width, Image.Height);
	for (int32 Row = 0; Row < Image.Height; ++Row)
	{
		FMemory::Memcpy(Picture.GetData() + Row * RowSize, Image.Pixels + Row * Image.RowLength * BytesPerPixel,
			static_cast<size_t>(RowSize));
	}
}
