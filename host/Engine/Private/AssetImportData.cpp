// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "EditorFramework/AssetImportData.h"

#include "UObject/GeneratedCppIncludes.h"

UClass* UAssetImportData::StaticClass()
{
	static UClass* const Class = HostReflection::NewClass(TEXT("/Script/Engine"), TEXT("AssetImportData"),
		sizeof(UAssetImportData), TEXT(""), &HostReflection::Construct<UAssetImportData>, UObject::StaticClass());
	return Class;
}
