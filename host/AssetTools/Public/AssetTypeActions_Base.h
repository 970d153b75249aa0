// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "IAssetTools.h"

/** The defaults of most types. */
class FAssetTypeActions_Base : public IAssetTypeActions
{
public:
	void OpenAssetEditor(const TArray<UObject*>&, TSharedPtr<IToolkitHost> = TSharedPtr<IToolkitHost>()) override {}

	void OpenAssetEditor(const TArray<UObject*>& InObjects, const EAssetTypeActivationOpenedMethod OpenedMethod,
		TSharedPtr<IToolkitHost> EditWithinLevelEditor = TSharedPtr<IToolkitHost>()) override
	{
		if (OpenedMethod == EAssetTypeActivationOpenedMethod::Edit)
		{
			OpenAssetEditor(InObjects, EditWithinLevelEditor);
		}
	}

	bool SupportsOpenedMethod(const EAssetTypeActivationOpenedMethod OpenedMethod) const override
	{
		return OpenedMethod == EAssetTypeActivationOpenedMethod::Edit;
	}

protected:
	FText GetAssetDescription(const FAssetData&) const override { return FText(); }
};
