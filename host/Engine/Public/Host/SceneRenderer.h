// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Stands in for the renderer: every world holds the same scene, as large as the viewport.
#pragma once

#include "HAL/Platform.h"

class FCanvas;
class FViewport;

enum class EHostScene : uint8
{
	/** Colors that are known exactly, for tests. */
	Chart,

	/** What looks like a picture. */
	Stage,
};

namespace HostScene
{
ENGINE_API void Show(EHostScene Scene);

ENGINE_API void Draw(FViewport& Viewport, FCanvas& Canvas);
} // namespace HostScene
