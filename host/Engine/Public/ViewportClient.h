// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

class FCanvas;
class FViewport;

/** Whoever draws into a viewport and takes its input. */
class FViewportClient
{
public:
	virtual ~FViewportClient() = default;
	virtual void Draw(FViewport*, FCanvas*) {}
};
