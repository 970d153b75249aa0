// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithDisplayConfiguration.h"

// Not in the header: other modules import it.
FTonalithDisplayConfiguration::FTonalithDisplayConfiguration() = default;
