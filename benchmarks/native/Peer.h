// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// FFmpeg, measured beside this project's code: what its filter "lut3d" needs for the same pictures and tables.
#pragma once

#include "Looks.h"

namespace Bench
{
/**
 * Applies a table to a frame, one thread, tetrahedra, eight bits a channel in planes; the loop's own time is one frame's:
 * 60 frames from a file to nowhere, less the same without the table.
 */
void peerOn(benchmark::State& state, const LookColor::FLookTable& table, const Frame& frame);

/** Reads a .cube file and applies it to one small picture, less the same without the table. */
void peerReads(benchmark::State& state, const std::string& cube);
} // namespace Bench
