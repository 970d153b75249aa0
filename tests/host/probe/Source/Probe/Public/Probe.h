// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A plug-in that writes down what the host does: one log line in category LogProbe an event.
#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "ProbeSettings.h"

class IProbeModule : public IModuleInterface
{
public:
	/** The next world makes the module throw. */
	virtual void ThrowAtNextEvent() = 0;

	/** The default object. */
	virtual UProbeSettings& Settings() = 0;
};
