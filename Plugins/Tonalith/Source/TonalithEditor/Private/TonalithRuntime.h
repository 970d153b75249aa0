// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The way to the runtime module.
#pragma once

class FTonalithDisplayManager;

/** Loads the runtime module if needed (fatal if it is not to be had). Ask at every use: the module may be reloaded. */
FTonalithDisplayManager& GetTonalithDisplayManager();
