// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "AssetToolsModule.h"

#include "Factories/Factory.h"
#include "Host/Assets.h"
#include "Modules/ModuleManager.h"

IMPLEMENT_HOST_MODULE(FAssetToolsModule, AssetTools)

IAssetTools& IAssetTools::Get()
{
	return FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools").Get();
}

void IAssetTools::RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions)
{
	HostTrace::Line(TEXT("register asset type %s"), *NewActions->GetSupportedClass()->GetName());
	Actions.Add(NewActions->GetSupportedClass(), NewActions);
}

void IAssetTools::UnregisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& ActionsToRemove)
{
	HostTrace::Line(TEXT("unregister asset type %s"), *ActionsToRemove->GetSupportedClass()->GetName());
	Actions.Remove(ActionsToRemove->GetSupportedClass());
}

TWeakPtr<IAssetTypeActions> IAssetTools::GetAssetTypeActionsForClass(const UClass* Class) const
{
	const TSharedPtr<IAssetTypeActions> Found = Actions.FindRef(Class);
	const UClass* Base = Class ? Class->GetSuperClass() : nullptr;
	return Found.IsValid() || !Base ? Found : GetAssetTypeActionsForClass(Base);
}

UObject* IAssetTools::CreateAsset(
	const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext)
{
	UPackage* Package = CreatePackage(*FPaths::Combine(PackagePath, AssetName));
	UObject* Asset = Factory->FactoryCreateNew(AssetClass, Package, FName(AssetName),
		RF_Public | RF_Standalone | RF_Transactional, nullptr, nullptr, CallingContext);
	if (Asset)
	{
		HostTrace::Line(TEXT("create asset %s"), *Asset->GetPathName());
		HostAssets::Add(*Asset);
	}
	return Asset;
}
