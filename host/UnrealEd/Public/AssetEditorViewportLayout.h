// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

struct FAssetEditorViewportConstructionArgs
{
	/** Names the pane within its layout, such as "FourPanes2x2.Viewport 1.Viewport0". */
	FName ConfigKey;
};
