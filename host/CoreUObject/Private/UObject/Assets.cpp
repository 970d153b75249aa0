// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Assets.h"

#include "UObject/UObjectGlobals.h"

namespace
{
TArray<FHostAsset>& Known()
{
	static TArray<FHostAsset> Assets;
	return Assets;
}

UObject* Load(const FHostAsset& Asset)
{
	UClass* Class = static_cast<UClass*>(StaticFindObject(UClass::StaticClass(), *Asset.ClassPath));
	if (!Class)
	{
		return nullptr;
	}
	const int32 Point = Asset.Path.Find(TEXT("."));
	UPackage* Package = CreatePackage(*Asset.Path.Mid(0, Point));
	return StaticConstructObject(Class, Package, FName(Asset.Path.Mid(Point + 1)), RF_Public | RF_Standalone);
}
} // namespace

void HostAssets::Declare(const FHostAsset& Asset)
{
	Known().Add(Asset);
}

void HostAssets::LoadAll()
{
	for (const FHostAsset& Asset : Known())
	{
		StaticLoadObject(UObject::StaticClass(), *Asset.Path);
	}
}

UObject* StaticLoadObject(UClass* Class, const TCHAR* Path)
{
	UObject* Found = StaticFindObject(UObject::StaticClass(), Path);
	const FHostAsset* Asset =
		Known().FindByPredicate([Path](const FHostAsset& Candidate) { return Candidate.Path == Path; });
	if (!Found && Asset)
	{
		Found = Load(*Asset);
	}
	return Found && Found->IsA(Class) ? Found : nullptr;
}
