// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "EditorFramework/AssetImportData.h"

#include "UObject/GeneratedCppIncludes.h"

HOST_DEFINE_OWN_CLASS(Engine, U, AssetImportData, &HostReflection::Construct<UAssetImportData>)
