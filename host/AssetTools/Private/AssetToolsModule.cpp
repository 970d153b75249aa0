// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Modules/ModuleManager.h"

IMPLEMENT_HOST_MODULE(FDefaultModuleImpl, AssetTools)
