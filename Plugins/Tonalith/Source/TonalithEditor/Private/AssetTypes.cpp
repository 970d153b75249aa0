// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "AssetToolsModule.h"
#include "AssetTypeActions_TonalithObject.h"
#include "Modules/ModuleManager.h"
#include "TonalithEditorModule.h"

namespace
{
const FName AssetTools("AssetTools");
}

void FTonalithEditorModule::RegisterAssetTypes()
{
	const FAssetToolsModule& Module = FModuleManager::LoadModuleChecked<FAssetToolsModule>(AssetTools);
	const TSharedRef<IAssetTypeActions> Actions = MakeShared<FAssetTypeActions_TonalithObject>();
	Module.Get().RegisterAssetTypeActions(Actions);
	RegisteredAssetTypeActions.Add(Actions);
}

void FTonalithEditorModule::UnregisterAssetTypes()
{
	// At a normal exit the module is gone by now, and what was registered with it.
	const FAssetToolsModule* Module = FModuleManager::GetModulePtr<FAssetToolsModule>(AssetTools);
	if (!Module)
	{
		return;
	}
	for (const TSharedRef<IAssetTypeActions>& Actions : RegisteredAssetTypeActions)
	{
		Module->Get().UnregisterAssetTypeActions(Actions);
	}
}
