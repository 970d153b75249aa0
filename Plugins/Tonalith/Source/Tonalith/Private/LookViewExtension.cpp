// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LookViewExtension.h"

#include "LookGrading.h"
#include "SceneView.h"
#include "TonalithDisplayManager.h"
#include "UnrealClient.h"

FLookViewExtension::FLookViewExtension(
	const FAutoRegister& AutoRegister, const FTonalithDisplayManager& InDisplayManager)
	: FSceneViewExtensionBase(AutoRegister), DisplayManager(InDisplayManager)
{
}

bool FLookViewExtension::IsActiveThisFrame_Internal(const FSceneViewExtensionContext& Context) const
{
	ActiveViewport = Context.Viewport;
	return FindShown(Context.Viewport) != nullptr;
}

void FLookViewExtension::SetupView(FSceneViewFamily& InViewFamily, FSceneView& InView)
{
	// The family of another target, such as a capture, has no look.
	if (InViewFamily.RenderTarget != ActiveViewport)
	{
		return;
	}
	if (const FTonalithDisplayConfiguration* Shown = FindShown(ActiveViewport))
	{
		BlendLook(*Shown->Look, Shown->Weight, InView.FinalPostProcessSettings);
	}
}

const FTonalithDisplayConfiguration* FLookViewExtension::FindShown(const FViewport* Viewport) const
{
	const FTonalithDisplayConfiguration* Configuration =
		Viewport ? DisplayManager.GetDisplayConfiguration(Viewport->GetClient()) : nullptr;
	const bool bShowsLook = Configuration && Configuration->bDisplay && IsValid(Configuration->Look);
	return bShowsLook ? Configuration : nullptr;
}
