// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What there is to see.
#pragma once

#include "CoreMinimal.h"

#include <array>

/** Red, green and blue in linear light; 1 is white, but there may be more. */
using FLight = std::array<double, 3>;

/**
 * The stage. The place is in shares of the frame's width and height, from the top left.
 * @param Aspect the frame's width through its height
 */
FLight StageLight(double Across, double Down, double Aspect);
