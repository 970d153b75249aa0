// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks as .cube files: one is exported and comes back as another look.
#include "CoreMinimal.h"
#include "EditorReimportHandler.h"
#include "Exporters/Exporter.h"
#include "Factories/Factory.h"
#include "LookClass.h"
#include "Misc/AutomationTest.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FTonalithCubeTest, "Tonalith.Files.ALookComesBackFromItsCube",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FTonalithCubeTest::RunTest(const FString&)
{
	UClass* const LookClass = FindLookClass();
	UClass* const FactoryClass = FindTonalithClass(TEXT("/Script/TonalithLookFiles.TonalithCubeFactory"));
	if (!TestNotNull(TEXT("the class of looks"), LookClass) || !TestNotNull(TEXT("the factory"), FactoryClass))
	{
		return false;
	}
	UObject* const Exported = NewObject<UObject>(GetTransientPackage(), LookClass);
	UExporter* const Exporter = UExporter::FindExporter(Exported, TEXT("cube"));
	const FString File = FPaths::Combine(FPaths::ProjectSavedDir(), TEXT("TonalithTests.cube"));
	if (!TestNotNull(TEXT("the exporter"), Exporter))
	{
		return false;
	}
	TestEqual(TEXT("files written"), UExporter::ExportToFile(Exported, Exporter, *File, false), 1);

	UFactory* const Factory = NewObject<UFactory>(GetTransientPackage(), FactoryClass);
	TestTrue(TEXT("the file is one of the factory's"), Factory->FactoryCanImport(File));
	TestFalse(TEXT("it is offered for new assets"), Factory->CanCreateNew());
	UPackage* const Package = CreatePackage(TEXT("/Temp/TonalithTests/Imported"));
	bool bIsCanceled = false;
	UObject* const Imported =
		Factory->FactoryCreateFile(LookClass, Package, "Imported", RF_Public, File, nullptr, nullptr, bIsCanceled);
	if (TestNotNull(TEXT("the imported look"), Imported))
	{
		TestTrue(TEXT("it is one"), Imported->GetClass() == LookClass);
		TestTrue(TEXT("its file is read again"), FReimportManager::Instance()->Reimport(Imported));
	}
	return true;
}

#endif
