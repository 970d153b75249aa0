// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// How other modules reach this one: load "Tonalith" by name and ask the interface.
#pragma once

#include "Modules/ModuleInterface.h"

class FTonalithDisplayManager;

/** The order of the virtual functions is part of the contract with other modules. */
class ITonalithModule : public IModuleInterface
{
public:
	/** The one registry of display records; it lives as long as the module. */
	virtual FTonalithDisplayManager& GetDisplayManager() = 0;
};
