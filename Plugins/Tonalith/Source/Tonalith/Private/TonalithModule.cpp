// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Modules/ModuleManager.h"
#include "TonalithDisplayManager.h"
#include "TonalithModuleInterface.h"

class FTonalithModule final : public ITonalithModule
{
public:
	FTonalithDisplayManager& GetDisplayManager() override { return DisplayManager; }

private:
	FTonalithDisplayManager DisplayManager;
};

IMPLEMENT_MODULE(FTonalithModule, Tonalith)
