// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "AssetRegistry/AssetData.h"

#include "Misc/Paths.h"
#include "UObject/UObjectGlobals.h"

FAssetData::FAssetData(const UObject* InAsset)
{
	if (InAsset)
	{
		const FString Package = InAsset->GetPackage()->GetName();
		PackageName = FName(Package);
		PackagePath = FName(FPaths::GetPath(Package));
		AssetName = InAsset->GetFName();
		AssetClassPath = FTopLevelAssetPath(InAsset->GetClass()->GetPathName());
	}
}

UClass* FAssetData::GetClass() const
{
	return static_cast<UClass*>(StaticFindObject(UClass::StaticClass(), *AssetClassPath.ToString()));
}

UObject* FAssetData::GetAsset() const
{
	return IsValid() ? StaticLoadObject(UObject::StaticClass(), *GetObjectPathString()) : nullptr;
}
