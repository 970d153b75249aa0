// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A captured frame, without and with a look.
#pragma once

#include "CoreMinimal.h"

struct FTonalithAPI_ImageDesc;

namespace LookColor
{
class IFrameGrader;
}

/** Rows are shared among cores. */
class FLookFrame
{
public:
	FLookFrame() = default;

	/** Copies the frame; no look is on it. */
	explicit FLookFrame(const FTonalithAPI_ImageDesc& Image);

	/** In pixels; 0 by 0 without a frame. */
	FIntPoint GetSize() const { return Size; }

	/** Puts a look on the frame, in place of the one before. */
	void Grade(const LookColor::IFrameGrader& Grader);

	/**
	 * The frame in the order of textures: blue, green, red, alpha.
	 * @param Line 0 to 1: how much of the width is plain; what lies right of that has the look
	 */
	TArray<uint8> MakeTexture(float Line) const;

private:
	/** Red, green, blue, alpha; rows without gaps. */
	TArray<uint8> Plain;
	TArray<uint8> Graded;
	FIntPoint Size = FIntPoint(0, 0);
};
