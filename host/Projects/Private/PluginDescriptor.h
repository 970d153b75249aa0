// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the host reads of a plug-in's files. What is wrong with them is thrown as by HostPlugins.
#pragma once

#include "CoreMinimal.h"

struct FModuleDescriptor
{
	FString Name;
	FString Type;
	FString LoadingPhase;
};

struct FPluginDescriptor
{
	/** Path of the .uplugin file. */
	FString File;

	TArray<FModuleDescriptor> Modules;
};

FPluginDescriptor ReadPluginDescriptor(const FString& File);

/** Reads the list of library files that lies beside them, by module; a list with unknown keys is refused. */
TMap<FName, FString> ReadModuleManifest(const FString& File);
