// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, TonalithTests)
