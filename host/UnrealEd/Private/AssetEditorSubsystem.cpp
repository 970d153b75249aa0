// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Subsystems/AssetEditorSubsystem.h"

#include "IAssetTools.h"

namespace
{
void OpenTogether(const TArray<UObject*>& Assets)
{
	const TSharedPtr<IAssetTypeActions> Actions =
		IAssetTools::Get().GetAssetTypeActionsForClass(Assets[0]->GetClass()).Pin();
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
	for (UObject* Asset : Assets)
	{
		if (Asset && !Opened.Contains(Asset))
		{
			Opened.Add(Asset);
		}
	}
	if (Opened.ContainsByPredicate([&](const UObject* Asset) { return Asset->GetClass() != Opened[0]->GetClass(); }))
	{
		for (UObject* Asset : Opened)
		{
			OpenTogether({Asset});
		}
	}
	else if (!Opened.IsEmpty())
	{
		OpenTogether(Opened);
	}
}
