// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

enum ERangeCompressionMode
{
	RCM_UNorm,
};

enum ECubeFace
{
	CubeFace_MAX,
};

/** How pixels are read back; the host knows one way. */
class FReadSurfaceDataFlags
{
public:
	FReadSurfaceDataFlags(ERangeCompressionMode = RCM_UNorm, ECubeFace = CubeFace_MAX) {}
};
