// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks in the engine's own color grading, and in this module's.
#pragma once

#include "Color/Grading.h"
#include "FinalPostProcessSettings.h"

class UTonalithObject;

/**
 * Blends the look's controls into the settings of a view. Values outside a control's range are taken as its nearest end,
 * what is no number as the neutral value.
 * @param Weight 0 leaves the settings as they are, 1 sets the look in full
 */
void BlendLook(const UTonalithObject& Look, float Weight, FPostProcessSettings& Settings);

/** The same for the settings of a view that is drawn: with the look's table, blended with those that are there. */
void BlendLook(UTonalithObject& Look, float Weight, FFinalPostProcessSettings& Settings);

/** The look in full as functions of light, its values made valid likewise. */
LookColor::FGrading GradingOf(const UTonalithObject& Look);
