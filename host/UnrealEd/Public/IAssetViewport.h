// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

class FSceneViewport;
class FViewport;

/** A pane that can be played in. */
class IAssetViewport
{
public:
	virtual ~IAssetViewport() = default;

	/** The viewport that takes the input: the play viewport while the pane plays. */
	virtual FViewport* GetActiveViewport() = 0;

	virtual void StartPlayInEditorSession(const TSharedPtr<FSceneViewport>& PlayViewport) = 0;
	virtual void EndPlayInEditorSession() = 0;
};
