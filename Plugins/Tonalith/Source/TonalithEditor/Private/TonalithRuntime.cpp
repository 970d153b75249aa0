// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithRuntime.h"

#include "Modules/ModuleManager.h"
#include "TonalithModuleInterface.h"

FTonalithDisplayManager& GetTonalithDisplayManager()
{
	static const FName ModuleName("Tonalith");
	return static_cast<ITonalithModule&>(FModuleManager::Get().LoadModuleChecked(ModuleName)).GetDisplayManager();
}
