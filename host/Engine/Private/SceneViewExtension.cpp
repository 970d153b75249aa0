// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SceneViewExtension.h"

#include "Engine/Engine.h"

void FSceneViewExtensions::RegisterExtension(const TSharedRef<ISceneViewExtension>& Extension)
{
	HostTrace::Line(TEXT("register view extension"));
	GEngine->ViewExtensions->KnownExtensions.Add(Extension);
}

TArray<TSharedRef<ISceneViewExtension>> FSceneViewExtensions::GatherActiveExtensions(
	const FSceneViewExtensionContext& InContext) const
{
	TArray<TSharedRef<ISceneViewExtension>> Active;
	for (const TWeakPtr<ISceneViewExtension>& Known : KnownExtensions)
	{
		const TSharedPtr<ISceneViewExtension> Extension = Known.Pin();
		if (Extension.IsValid() && Extension->IsActiveThisFrame(InContext))
		{
			Active.Add(Extension.ToSharedRef());
		}
	}
	return Active;
}
