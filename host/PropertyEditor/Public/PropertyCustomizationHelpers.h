// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "AssetRegistry/AssetData.h"
#include "Widgets/SWidget.h"

class IPropertyHandle;
class UFactory;

/** True hides the asset. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FOnShouldFilterAsset, const FAssetData&);
DECLARE_DELEGATE_OneParam(FOnAssetSelected, const FAssetData&);

namespace PropertyCustomizationHelpers
{
/**
 * A picker for a menu: the rows "Edit" when there is an initial asset and "Clear" when that is allowed, then all assets of
 * the allowed classes, or of any when none are given, but for those that are filtered. Choosing an asset calls OnSet,
 * then OnClose, and closes no menu. Clearing closes the picker's menu first, then calls OnSet with an empty value, then
 * OnClose. Rows to copy, paste and make assets are not offered.
 */
PROPERTYEDITOR_API TSharedRef<SWidget> MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const bool AllowCopyPaste, const TArray<const UClass*>& AllowedClasses, const TArray<UFactory*>& NewAssetFactories,
	FOnShouldFilterAsset OnShouldFilterAsset, FOnAssetSelected OnSet, FSimpleDelegate OnClose,
	const TSharedPtr<IPropertyHandle>& PropertyHandle = TSharedPtr<IPropertyHandle>(),
	const TArray<FAssetData>& OwnerAssetArray = TArray<FAssetData>());
} // namespace PropertyCustomizationHelpers
