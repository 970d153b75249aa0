// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks come and go as files. The engine finds this module's factory and exporter by their classes.
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, TonalithLookFiles)
