// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What Tonalith registers with the editor when it starts.
#include "AssetToolsModule.h"
#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "IAssetTools.h"
#include "IAssetTypeActions.h"
#include "LookClass.h"
#include "Misc/AutomationTest.h"
#include "Modules/ModuleManager.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "UObject/Package.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FTonalithRegistrationTest, "Tonalith.Start.TypeAndIconsAreRegistered",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FTonalithRegistrationTest::RunTest(const FString&)
{
	for (const TCHAR* Module : {TEXT("Tonalith"), TEXT("TonalithEditor"), TEXT("TonalithLookFiles")})
	{
		TestTrue(Module, FModuleManager::Get().IsModuleLoaded(Module));
	}
	UClass* const LookClass = FindLookClass();
	if (!TestNotNull(TEXT("the class of looks"), LookClass))
	{
		return false;
	}
	IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools").Get();
	const TSharedPtr<IAssetTypeActions> Actions = AssetTools.GetAssetTypeActionsForClass(LookClass).Pin();
	if (TestTrue(TEXT("looks have a type"), Actions.IsValid() && Actions->GetSupportedClass() == LookClass))
	{
		TestFalse(TEXT("the type has no name"), Actions->GetName().IsEmpty());
		TestEqual(TEXT("categories"), static_cast<int32>(Actions->GetCategories()), 64);
	}
	const ISlateStyle* const Style = FSlateStyleRegistry::FindSlateStyle("TonalithStyle");
	if (TestNotNull(TEXT("the style set"), Style))
	{
		for (const TCHAR* Brush : {TEXT("ClassIcon.TonalithObject"), TEXT("ClassThumbnail.TonalithObject")})
		{
			TestNotNull(Brush, Style->GetOptionalBrush(Brush, nullptr, nullptr));
		}
	}
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FTonalithFactoryTest, "Tonalith.Assets.TheFactoryMakesLooks",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FTonalithFactoryTest::RunTest(const FString&)
{
	UClass* const LookClass = FindLookClass();
	UClass* const FactoryClass = FindTonalithClass(TEXT("/Script/TonalithEditor.TonalithObjectFactoryNew"));
	if (!TestNotNull(TEXT("the class of looks"), LookClass) || !TestNotNull(TEXT("the factory"), FactoryClass))
	{
		return false;
	}
	UFactory* const Factory = NewObject<UFactory>(GetTransientPackage(), FactoryClass);
	TestTrue(TEXT("it is offered for new assets"), Factory->CanCreateNew() && Factory->ShouldShowInNewMenu());
	UObject* const Look =
		Factory->FactoryCreateNew(LookClass, GetTransientPackage(), NAME_None, RF_NoFlags, nullptr, nullptr, NAME_None);
	if (TestNotNull(TEXT("the look"), Look))
	{
		TestTrue(TEXT("it is one"), Look->GetClass() == LookClass);
	}
	return true;
}

#endif
