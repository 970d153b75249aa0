// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "AssetRegistry/AssetData.h"
#include "AssetTypeCategories.h"

class IToolkitHost;

enum class EAssetTypeActivationOpenedMethod : uint8
{
	Edit,
	View,
};

/** What the editor shows of the assets of a class and does with them. */
class IAssetTypeActions : public TSharedFromThis<IAssetTypeActions>
{
public:
	virtual ~IAssetTypeActions() = default;

	virtual FText GetName() const = 0;
	virtual UClass* GetSupportedClass() const = 0;
	virtual FColor GetTypeColor() const = 0;

	virtual void OpenAssetEditor(const TArray<UObject*>& InObjects,
		TSharedPtr<IToolkitHost> EditWithinLevelEditor = TSharedPtr<IToolkitHost>()) = 0;

	/** The way that the editor takes. */
	virtual void OpenAssetEditor(const TArray<UObject*>& InObjects, const EAssetTypeActivationOpenedMethod OpenedMethod,
		TSharedPtr<IToolkitHost> EditWithinLevelEditor = TSharedPtr<IToolkitHost>()) = 0;

	/** Bits of EAssetTypeCategories. */
	virtual uint32 GetCategories() = 0;

	virtual FText GetAssetDescription(const FAssetData& AssetData) const = 0;
	virtual bool SupportsOpenedMethod(const EAssetTypeActivationOpenedMethod OpenedMethod) const = 0;
};
