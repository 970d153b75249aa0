// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Finds plug-ins by their descriptors and loads their modules, phase by phase. What is wrong with a plug-in is thrown as
// std::runtime_error with one line, UTF-8: file, place, reason.
#pragma once

#include "CoreMinimal.h"

namespace HostPlugins
{
/**
 * Reads the descriptor and the module list of every plug-in directly below the folders, and tells the module manager
 * where the libraries lie.
 */
PROJECTS_API void Discover(const TArray<FString>& Folders);

/**
 * Loads the modules that the descriptors put into the phases, phase by phase, in the order of the descriptor.
 * @param bIsCommandlet leaves out modules that do not load in commandlets
 */
PROJECTS_API void LoadModules(const TArray<FString>& Phases, bool bIsCommandlet);
} // namespace HostPlugins
