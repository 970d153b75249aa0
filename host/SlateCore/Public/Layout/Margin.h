// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** Space around something, in Slate units. */
struct FMargin
{
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;
};
