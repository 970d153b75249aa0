// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "AssetRegistry/AssetData.h"

#include "Misc/Paths.h"
#include "UObject/UObjectGlobals.h"

FAssetData::FAssetData(const FString& Package, const FString& ClassPath)
	: PackageName(Package)
	, PackagePath(FPaths::GetPath(Package))
	, AssetName(Package.Mid(FPaths::GetPath(Package).Len() + 1))
	, AssetClassPath(ClassPath)
{
}

FAssetData::FAssetData(const UObject* InAsset)
{
	if (InAsset)
	{
		*this = FAssetData(InAsset->GetPackage()->GetName(), InAsset->GetClass()->GetPathName());
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
