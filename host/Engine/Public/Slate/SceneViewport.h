// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The viewport of a widget.
#pragma once

#include "UnrealClient.h"

class FViewportFrame
{
public:
	virtual ~FViewportFrame() = default;
	virtual FViewport* GetViewport() = 0;
};

/** The frame comes first, as in the engine: converting to FViewport changes the address. */
class FSceneViewport
	: public FViewportFrame
	, public FViewport
{
public:
	explicit FSceneViewport(FViewportClient* InViewportClient) : FViewport(InViewportClient)
	{
		SetFixedViewportSize(320, 180);
	}

	FViewport* GetViewport() override { return this; }

	/** In pixels. */
	void SetFixedViewportSize(uint32 NewViewportSizeX, uint32 NewViewportSizeY)
	{
		SizeX = NewViewportSizeX;
		SizeY = NewViewportSizeY;
	}
};
