// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What is rendered of a scene: a view, and the views of one target together.
#pragma once

#include "Engine/Scene.h"

class FRenderTarget;

class FSceneView
{
public:
	FPostProcessSettings FinalPostProcessSettings;
};

class FSceneViewFamily
{
public:
	/** Not owned. */
	const FRenderTarget* RenderTarget = nullptr;
};
