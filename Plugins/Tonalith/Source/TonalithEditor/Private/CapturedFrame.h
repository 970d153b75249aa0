// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Pictures of viewports, in the form in which looks take them.
#pragma once

#include "CoreMinimal.h"

/** The pixels as bytes red, green, blue and 255, in the same order. */
TArray<uint8> FrameFromPixels(const TArray<FColor>& Pixels);
