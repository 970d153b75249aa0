// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Viewports and what stands behind them.
#pragma once

#include "CoreMinimal.h"
#include "RHITypes.h"
#include "ViewportClient.h"

class FRenderTarget
{
public:
	virtual ~FRenderTarget() = default;

	/** In pixels. */
	virtual FIntPoint GetSizeXY() const = 0;

	/**
	 * Reads what was drawn last, row by row.
	 * @param InSrcRect the whole target when empty
	 * @return false when no pixel was read
	 */
	virtual bool ReadPixels(TArray<FColor>& OutImageData,
		FReadSurfaceDataFlags InFlags = FReadSurfaceDataFlags(RCM_UNorm, CubeFace_MAX),
		FIntRect InSrcRect = FIntRect(0, 0, 0, 0)) = 0;
};

/** A surface that a client draws into. The client is not owned. */
class ENGINE_API FViewport : public FRenderTarget
{
public:
	explicit FViewport(FViewportClient* InViewportClient) : ViewportClient(InViewportClient) {}

	FViewportClient* GetClient() const { return ViewportClient; }

	/** Has the client draw, at once; nothing at zero size. */
	void Draw(bool bShouldPresent = true);

	bool ReadPixels(TArray<FColor>& OutImageData,
		FReadSurfaceDataFlags InFlags = FReadSurfaceDataFlags(RCM_UNorm, CubeFace_MAX),
		FIntRect InSrcRect = FIntRect(0, 0, 0, 0)) override;

	FIntPoint GetSizeXY() const override { return FIntPoint(static_cast<int32>(SizeX), static_cast<int32>(SizeY)); }

protected:
	FViewportClient* ViewportClient;
	uint32 SizeX = 0;
	uint32 SizeY = 0;

private:
	/** What was drawn last. */
	TArray<FColor> Pixels;
};

class FCommonViewportClient : public FViewportClient
{
};
