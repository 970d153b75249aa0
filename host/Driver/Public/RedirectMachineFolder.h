// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The machine-wide folder for application data, as this process sees it.
#pragma once

#include "CoreMinimal.h"

/**
 * From now on the platform gives this process another folder; the machine's own stays untouched. Once in a process.
 * @param Folder made when missing
 * @return false when the platform refuses
 */
bool RedirectMachineFolder(const FString& Folder);
