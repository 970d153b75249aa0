// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The types of assets, and how assets are made.
#pragma once

#include "IAssetTypeActions.h"

class UFactory;

class ASSETTOOLS_API IAssetTools
{
public:
	virtual ~IAssetTools() = default;

	/** Loads the module if need be. */
	static IAssetTools& Get();

	/** What was registered for the same class before is replaced. */
	virtual void RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions);

	/** Removes what is registered for the actions' class, whoever registered it. */
	virtual void UnregisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& ActionsToRemove);

	/** The actions of the class or of its nearest base that has some; invalid when there are none. */
	virtual TWeakPtr<IAssetTypeActions> GetAssetTypeActionsForClass(const UClass* Class) const;

	/** Makes an asset of that name in a folder such as "/Game/Looks". @return null when the factory makes none */
	virtual UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass,
		UFactory* Factory, FName CallingContext = NAME_None);

private:
	/** By supported class. */
	TMap<const UClass*, TSharedPtr<IAssetTypeActions>> Actions;
};
