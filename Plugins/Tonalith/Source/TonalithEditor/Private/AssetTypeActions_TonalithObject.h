// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks as a type of asset.
#pragma once

#include "AssetTypeActions_Base.h"
#include "CoreMinimal.h"

/** What the content browser shows of looks and does with them. Without state. */
class FAssetTypeActions_TonalithObject final : public FAssetTypeActions_Base
{
public:
	virtual FText GetName() const override;
	virtual UClass* GetSupportedClass() const override;
	virtual FColor GetTypeColor() const override;
	virtual uint32 GetCategories() override;

	/** The same text for every look. */
	virtual FText GetAssetDescription(const FAssetData& AssetData) const override;

	using FAssetTypeActions_Base::OpenAssetEditor;

	/**
	 * Hands each look a fresh picture of the active viewport, taken with the viewport's own look switched off. What is no
	 * look is left out. Fatal without an active viewport.
	 * @param EditWithinLevelEditor not used: looks have a window of their own
	 */
	virtual void OpenAssetEditor(
		const TArray<UObject*>& InObjects, TSharedPtr<IToolkitHost> EditWithinLevelEditor) override;
};
