// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the host reads of a plug-in's files.
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

/** Reads a .uplugin file. @return false with one line in OutError: file, line and column, reason */
bool ReadPluginDescriptor(const FString& File, FPluginDescriptor& OutDescriptor, FString& OutError);

/** Reads the list of library files that lies beside them; a list with unknown keys is refused. */
bool ReadModuleManifest(const FString& File, TMap<FName, FString>& OutFiles, FString& OutError);
