// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/ContentBrowser.h"

#include "Factories/Factory.h"
#include "IAssetTools.h"
#include "Styling/SlateStyleRegistry.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/UObjectHash.h"

TArray<FHostNewAssetEntry> HostContentBrowser::GetNewAssetMenu()
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UFactory::StaticClass(), Classes);
	TArray<FHostNewAssetEntry> Menu;
	for (UClass* Class : Classes)
	{
		UFactory* Factory = static_cast<UFactory*>(Class->GetDefaultObject());
		const bool bIsOffered = Factory && Factory->ShouldShowInNewMenu();
		const TSharedPtr<IAssetTypeActions> Actions =
			bIsOffered ? IAssetTools::Get().GetAssetTypeActionsForClass(Factory->SupportedClass).Pin() : nullptr;
		if (Actions.IsValid())
		{
			Menu.Add({Actions->GetName(), Factory});
		}
	}
	return Menu;
}

UObject* HostContentBrowser::CreateNewAsset(const FString& Name, const FString& Folder, UFactory& Factory)
{
	UObject* Asset =
		IAssetTools::Get().CreateAsset(Name, Folder, Factory.SupportedClass, &Factory, "ContentBrowserNewAsset");
	if (Asset && Factory.bEditAfterNew)
	{
		UAssetEditorSubsystem::OpenEditorForAssets({Asset});
	}
	return Asset;
}

const FSlateBrush* HostContentBrowser::FindClassBrush(const TCHAR* Kind, const UClass& Class)
{
	const FSlateBrush* Found = nullptr;
	for (const UClass* Type = &Class; Type && !Found; Type = Type->GetSuperClass())
	{
		const FName Name(FString::Printf(TEXT("%s.%s"), Kind, *Type->GetName()));
		FSlateStyleRegistry::IterateAllStyles(
			[&](const ISlateStyle& Style)
			{
				Found = Style.GetOptionalBrush(Name);
				return Found == nullptr;
			});
	}
	return Found;
}
