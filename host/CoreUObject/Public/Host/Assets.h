// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The assets of the project: a registry of what its content folder and its memory hold. An asset on disk is config text:
// "/Game/Looks/Warm.Warm" is the file Content/Looks/Warm.asset with the section [Asset]: the class and the properties.
#pragma once

#include "AssetRegistry/AssetData.h"

namespace HostAssets
{
/** Registers what lies in the content folder of the project that is open. Objects are made when they are asked for. */
COREUOBJECT_API void Scan();

/** In the order of their paths. */
COREUOBJECT_API TArray<FAssetData> GetAll();

/** Registers an asset that was made in this session; its package becomes dirty. */
COREUOBJECT_API void Add(UObject& Asset);

/** Deletes an asset: out of the registry and the content folder; its object becomes garbage. */
COREUOBJECT_API void Delete(UObject& Asset);

/** Writes the assets whose packages are dirty. */
COREUOBJECT_API void SaveDirtyPackages();

/** Puts an asset with the class's defaults into a project's content folder. */
COREUOBJECT_API void Write(const FString& ProjectFolder, const FString& ClassPath, const FString& Path);
} // namespace HostAssets
