// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** Space around something, in Slate units. */
struct FMargin
{
	FMargin() = default;
	FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft), Top(InTop), Right(InRight), Bottom(InBottom)
	{
	}

	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;
};
