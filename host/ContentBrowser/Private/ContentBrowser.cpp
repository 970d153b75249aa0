// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/ContentBrowser.h"

#include "AssetToolsModule.h"
#include "Factories/Factory.h"
#include "Modules/ModuleManager.h"
#include "Styling/SlateStyleRegistry.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/UObjectHash.h"

namespace
{
IAssetTools& AssetTools()
{
	return FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools").Get();
}
} // namespace

TArray<FHostNewAssetEntry> HostContentBrowser::GetNewAssetMenu()
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UFactory::StaticClass(), Classes);
	TArray<FHostNewAssetEntry> Menu;
	for (UClass* Class : Classes)
	{
		UFactory* Factory = static_cast<UFactory*>(Class->GetDefaultObject());
		if (!Factory || !Factory->ShouldShowInNewMenu())
		{
			continue;
		}
		if (const TSharedPtr<IAssetTypeActions> Actions =
				AssetTools().GetAssetTypeActionsForClass(Factory->SupportedClass).Pin())
		{
			Menu.Add({Actions->GetName(), Factory});
		}
	}
	return Menu;
}

UObject* HostContentBrowser::CreateNewAsset(const FString& Name, const FString& Folder, UFactory& Factory)
{
	UObject* Asset = AssetTools().CreateAsset(Name, Folder, Factory.SupportedClass, &Factory, "ContentBrowserNewAsset");
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
