// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "AssetToolsModule.h"

#include "Factories/Factory.h"
#include "Host/Assets.h"
#include "Host/Trace.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"

IMPLEMENT_HOST_MODULE(FAssetToolsModule, AssetTools)

namespace
{
class FAssetTools final : public IAssetTools
{
public:
	void RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions) override
	{
		HostTrace::Line(TEXT("register asset type %s"), *NewActions->GetSupportedClass()->GetName());
		Actions.Add(NewActions->GetSupportedClass(), NewActions);
	}

	void UnregisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& ActionsToRemove) override
	{
		HostTrace::Line(TEXT("unregister asset type %s"), *ActionsToRemove->GetSupportedClass()->GetName());
		Actions.Remove(ActionsToRemove->GetSupportedClass());
	}

	TWeakPtr<IAssetTypeActions> GetAssetTypeActionsForClass(const UClass* Class) const override
	{
		for (; Class; Class = Class->GetSuperClass())
		{
			if (const TSharedPtr<IAssetTypeActions>* Found = Actions.Find(Class))
			{
				return *Found;
			}
		}
		return nullptr;
	}

	UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory,
		FName CallingContext) override
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

private:
	/** By supported class. */
	TMap<const UClass*, TSharedPtr<IAssetTypeActions>> Actions;
};
} // namespace

void FAssetToolsModule::StartupModule()
{
	AssetTools = MakeUnique<FAssetTools>();
}
