// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithRuntime.h"

#include "Modules/ModuleManager.h"
#include "TonalithModuleInterface.h"

FTonalithDisplayManager& GetTonalithDisplayManager()
{
	static const FName ModuleName("Tonalith");
	return FModuleManager::LoadModuleChecked<ITonalithModule>(ModuleName).GetDisplayManager();
}
