// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

class IAssetViewport;

struct FRequestPlaySessionParams
{
	/** The pane to play in; none means a window of its own. */
	TWeakPtr<IAssetViewport> DestinationSlateViewport;
};

/** What stops a play session before it started. The host takes it from the driver, in place of dialogs. */
enum class EPlayCancellation
{
	None,
	MapSaveRefused,
	NotAuthorized,
	ErrorPrompt,
};
