// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Subsystems/AssetEditorSubsystem.h"

#include "AssetToolsModule.h"
#include "Host/Trace.h"
#include "Modules/ModuleManager.h"

namespace
{
void OpenTogether(const TArray<UObject*>& Assets)
{
	const TSharedPtr<IAssetTypeActions> Actions = FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools")
													  .Get()
													  .GetAssetTypeActionsForClass(Assets[0]->GetClass())
													  .Pin();
	if (!Actions.IsValid())
	{
		HostTrace::Line(TEXT("open the property editor of %s"), *Assets[0]->GetPathName());
		return;
	}
	if (Actions->SupportsOpenedMethod(EAssetTypeActivationOpenedMethod::Edit))
	{
		Actions->OpenAssetEditor(Assets, EAssetTypeActivationOpenedMethod::Edit, nullptr);
	}
}
} // namespace

void UAssetEditorSubsystem::OpenEditorForAssets(const TArray<UObject*>& Assets)
{
	TArray<UObject*> Opened;
	bool bOneClass = true;
	for (UObject* Asset : Assets)
	{
		if (Asset && !Opened.Contains(Asset))
		{
			Opened.Add(Asset);
			bOneClass = bOneClass && Asset->GetClass() == Opened[0]->GetClass();
		}
	}
	if (bOneClass && !Opened.IsEmpty())
	{
		OpenTogether(Opened);
		return;
	}
	for (UObject* Asset : Opened)
	{
		OpenTogether({Asset});
	}
}
