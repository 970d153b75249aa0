// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What is known of an asset without loading it.
#pragma once

#include "UObject/Object.h"
#include "UObject/TopLevelAssetPath.h"

struct FAssetData
{
	FAssetData() = default;

	/** Of an object that is in memory; null gives the same as the default constructor. */
	COREUOBJECT_API FAssetData(const UObject* InAsset);

	/** Of the one asset in the package, which has the package's name. */
	COREUOBJECT_API FAssetData(const FString& Package, const FString& ClassPath);

	bool IsValid() const { return !PackageName.IsNone() && !AssetName.IsNone(); }

	bool operator==(const FAssetData& Other) const
	{
		return PackageName == Other.PackageName && AssetName == Other.AssetName;
	}

	/** Null for a class that does not exist. */
	COREUOBJECT_API UClass* GetClass() const;

	/** The object, loaded if it is not in memory yet; null when there is none. */
	COREUOBJECT_API UObject* GetAsset() const;

	/** Such as "/Game/Looks/Warm.Warm". */
	FString GetObjectPathString() const { return PackageName.ToString() + TEXT(".") + AssetName.ToString(); }

	/** Such as "/Game/Looks/Warm". */
	FName PackageName;

	/** Such as "/Game/Looks". */
	FName PackagePath;

	FName AssetName;
	FTopLevelAssetPath AssetClassPath;
};
