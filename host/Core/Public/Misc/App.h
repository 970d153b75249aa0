// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

class FApp
{
public:
	/** Whether there is a renderer; commandlets have none. */
	static bool CanEverRender() { return bCanEverRender; }

	/** Set by the host. */
	CORE_API static bool bCanEverRender;
};
