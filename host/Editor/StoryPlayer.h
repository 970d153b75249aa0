// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Plays a story through the driver and prints each step with what the editor logged meanwhile.
#pragma once

#include "Report.h"
#include "Story.h"

/** Checks all steps. Throws FStoryError at the first one that is wrong. */
void CheckStory(const FStory& Story);

/**
 * Plays one session of a checked story; the first one begins with a project without files. Throws FStoryError at the first
 * step that fails.
 */
void PlayStory(const FStory& Story, size_t Session, const FEngineLoopOptions& Options, FReport& Report);
