// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Finds plug-ins by their descriptors and loads their modules, phase by phase.
#pragma once

#include "CoreMinimal.h"

namespace HostPlugins
{
/**
 * Reads the descriptor and the module list of every plug-in directly below the folder, and tells the module manager
 * where the libraries lie.
 * @param OutError on failure one line: file, place, reason
 */
PROJECTS_API bool Discover(const FString& PluginsFolder, FString& OutError);

/** The loading phases in their order; every one of them comes before the engine loop is complete. */
PROJECTS_API const TArray<FString>& LoadingPhases();

/**
 * Loads the modules that the descriptors put into the phase, in the order of the descriptor.
 * @param bIsCommandlet leaves out modules that do not load in commandlets
 * @param OutError on failure one line: file, place, reason
 */
PROJECTS_API bool LoadModules(const FString& Phase, bool bIsCommandlet, FString& OutError);
} // namespace HostPlugins
