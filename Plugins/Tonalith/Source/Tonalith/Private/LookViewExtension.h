// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Draws looks: writes them into the views of the viewports that show one.
#pragma once

#include "SceneViewExtension.h"

class FTonalithDisplayManager;
class FViewport;
struct FTonalithDisplayConfiguration;

/** Inactive, and without cost, for every viewport that shows no look. Game thread. */
class FLookViewExtension final : public FSceneViewExtensionBase
{
public:
	/** @param InDisplayManager must outlive the extension */
	FLookViewExtension(const FAutoRegister& AutoRegister, const FTonalithDisplayManager& InDisplayManager);

	virtual void SetupViewFamily(FSceneViewFamily&) override {}

	virtual void SetupView(FSceneViewFamily& InViewFamily, FSceneView& InView) override;

	virtual void BeginRenderViewFamily(FSceneViewFamily&) override {}

protected:
	virtual bool IsActiveThisFrame_Internal(const FSceneViewExtensionContext& Context) const override;

private:
	/** The viewport's record if it shows a look, else null. */
	const FTonalithDisplayConfiguration* FindShown(const FViewport* Viewport) const;

	const FTonalithDisplayManager& DisplayManager;

	/** The engine asks for activity right before it sets up a viewport's views; these name no viewport themselves. */
	mutable const FViewport* ActiveViewport = nullptr;
};
