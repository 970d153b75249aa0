// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Stands in for the renderer: the scene of every world is a test chart as large as the viewport.
#pragma once

#include "CoreMinimal.h"

class FCanvas;
class FViewport;

namespace HostScene
{
/**
 * The chart, from top to bottom: the upper half sweeps the hues from left to right and loses saturation downwards; then
 * come eight patches (red, green, blue, cyan, magenta, yellow, a skin, a foliage); the last quarter is a ramp from black
 * to white. Alpha is 0, as scenes leave it.
 */
ENGINE_API FColor ChartColor(FIntPoint Pixel, FIntPoint Size);

ENGINE_API void Draw(FViewport& Viewport, FCanvas& Canvas);
} // namespace HostScene
