// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What is rendered of a scene: a view, and the views of one target together.
#pragma once

#include "FinalPostProcessSettings.h"

class FRenderTarget;

class FSceneView
{
public:
	FFinalPostProcessSettings FinalPostProcessSettings;
};

class FSceneViewFamily
{
public:
	/** Not owned. */
	const FRenderTarget* RenderTarget = nullptr;
};
