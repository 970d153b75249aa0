// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The tests that the loaded libraries brought along.
#pragma once

#include "Misc/AutomationTest.h"

namespace HostAutomation
{
/** In the order of their names. */
CORE_API TArray<FAutomationTestBase*> GetTests();
} // namespace HostAutomation
