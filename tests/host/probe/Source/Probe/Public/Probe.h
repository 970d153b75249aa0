// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A plug-in that writes down what the host does: one log line in category LogProbe an event.
#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class IProbeModule : public IModuleInterface
{
public:
	/** What the next worlds and sessions do; the first own virtual function. */
	virtual void ThrowAtNextEvent() = 0;
};
