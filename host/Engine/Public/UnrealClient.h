// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Viewports and what stands behind them.
#pragma once

#include "CoreMinimal.h"
#include "ViewportClient.h"

class FRenderTarget
{
public:
	virtual ~FRenderTarget() = default;

	/** In pixels. */
	virtual FIntPoint GetSizeXY() const = 0;
};

/** A surface that a client draws into. The client is not owned. */
class FViewport : public FRenderTarget
{
public:
	explicit FViewport(FViewportClient* InViewportClient) : ViewportClient(InViewportClient) {}

	FViewportClient* GetClient() const { return ViewportClient; }

	FIntPoint GetSizeXY() const override { return FIntPoint(static_cast<int32>(SizeX), static_cast<int32>(SizeY)); }

protected:
	FViewportClient* ViewportClient;
	uint32 SizeX = 0;
	uint32 SizeY = 0;
};

class FCommonViewportClient : public FViewportClient
{
};
