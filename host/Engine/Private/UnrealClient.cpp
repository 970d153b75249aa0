// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UnrealClient.h"

#include "CanvasTypes.h"

void FViewport::Draw(bool)
{
	const FIntPoint Size = GetSizeXY();
	if (Size.X <= 0 || Size.Y <= 0)
	{
		return;
	}
	HostTrace::Line(TEXT("draw viewport %d x %d"), Size.X, Size.Y);
	Pixels.SetNumUninitialized(Size.X * Size.Y);
	FCanvas Canvas(Size, Pixels);
	ViewportClient->Draw(this, &Canvas);
}

bool FViewport::ReadPixels(TArray<FColor>& OutImageData, FReadSurfaceDataFlags, FIntRect)
{
	HostTrace::Line(TEXT("read pixels"));
	OutImageData = Pixels;
	return !Pixels.IsEmpty();
}
