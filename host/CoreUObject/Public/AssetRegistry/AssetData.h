// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What is known of an asset without loading it.
#pragma once

#include "Misc/Paths.h"
#include "UObject/TopLevelAssetPath.h"
#include "UObject/UObjectGlobals.h"

struct FAssetData
{
	FAssetData() = default;

	/** Of an object that is in memory; null gives the same as the default constructor. */
	FAssetData(const UObject* InAsset)
	{
		if (InAsset)
		{
			*this = FAssetData(InAsset->GetPackage()->GetName(), InAsset->GetClass()->GetPathName());
		}
	}

	/** Of the one asset in the package, which has the package's name. */
	FAssetData(const FString& Package, const FString& ClassPath)
		: PackageName(Package)
		, PackagePath(FPaths::GetPath(Package))
		, AssetName(Package.Mid(FPaths::GetPath(Package).Len() + 1))
		, AssetClassPath(ClassPath)
	{
	}

	bool IsValid() const { return !PackageName.IsNone() && !AssetName.IsNone(); }

	bool operator==(const FAssetData& Other) const
	{
		return PackageName == Other.PackageName && AssetName == Other.AssetName;
	}

	/** Null for a class that does not exist. */
	UClass* GetClass() const
	{
		return static_cast<UClass*>(StaticFindObject(UClass::StaticClass(), *AssetClassPath.ToString()));
	}

	/** The object, loaded if it is not in memory yet; null when there is none. */
	UObject* GetAsset() const
	{
		return IsValid() ? StaticLoadObject(UObject::StaticClass(), *GetObjectPathString()) : nullptr;
	}

	/** Such as "/Game/Looks/Warm.Warm". */
	FString GetObjectPathString() const { return PackageName.ToString() + TEXT(".") + AssetName.ToString(); }

	/** Such as "/Game/Looks/Warm". */
	FName PackageName;

	/** Such as "/Game/Looks". */
	FName PackagePath;

	FName AssetName;
	FTopLevelAssetPath AssetClassPath;
};
