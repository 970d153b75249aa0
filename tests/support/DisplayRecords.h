// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The runtime module's registry, as the modules beside it reach it.
#pragma once

#include "Modules/ModuleManager.h"
#include "TonalithDisplayManager.h"
#include "TonalithModuleInterface.h"

inline FTonalithDisplayConfiguration Configured(bool bDisplay, float Weight, UTonalithObject* Look)
{
	FTonalithDisplayConfiguration Configuration;
	Configuration.bDisplay = bDisplay;
	Configuration.Weight = Weight;
	Configuration.Look = Look;
	return Configuration;
}

inline FTonalithDisplayManager& DisplayRecords()
{
	return FModuleManager::LoadModuleChecked<ITonalithModule>("Tonalith").GetDisplayManager();
}
