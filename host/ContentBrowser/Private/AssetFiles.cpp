// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/AssetFiles.h"

#include "Factories/Factory.h"
#include "Host/Assets.h"
#include "Host/Trace.h"
#include "Misc/FeedbackContext.h"
#include "Misc/Paths.h"
#include "UObject/UObjectHash.h"

namespace
{
/** What the user is told. */
class FToldUser final : public FFeedbackContext
{
public:
	void Serialize(const TCHAR* Text, ELogVerbosity::Type, const FName&) override
	{
		HostTrace::Line(TEXT("tell user %s"), Text);
	}
};

/** A new one of the first class that imports the file; null when there is none. */
UFactory* MakeFactory(const FString& File)
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UFactory::StaticClass(), Classes);
	const FString Format = FPaths::GetExtension(File) + TEXT(";");
	for (UClass* Class : Classes)
	{
		UFactory* const Factory = static_cast<UFactory*>(Class->GetDefaultObject());
		const auto IsOfFile = [&Format](const FString& Each) { return Each.StartsWith(Format); };
		if (Factory && Factory->bEditorImport && Factory->Formats.ContainsByPredicate(IsOfFile) &&
			Factory->FactoryCanImport(File))
		{
			return NewObject<UFactory>(CreatePackage(TEXT("/Engine/Transient")), Class);
		}
	}
	return nullptr;
}

} // namespace

UObject* HostContentBrowser::Import(const FString& File, const FString& Folder)
{
	UFactory* const Factory = MakeFactory(File);
	if (!Factory)
	{
		return nullptr;
	}
	const FString Name = FPaths::GetBaseFilename(File);
	const FString Path = FPaths::Combine(Folder, Name);
	// An asset that is there already is loaded, so that the factory finds it.
	StaticLoadObject(UObject::StaticClass(), *(Path + TEXT(".") + Name));
	FToldUser User;
	bool bIsCancelled = false;
	UObject* const Asset = Factory->FactoryCreateFile(Factory->SupportedClass, CreatePackage(*Path), FName(Name),
		RF_Public | RF_Standalone | RF_Transactional, File, TEXT(""), &User, bIsCancelled);
	if (Asset)
	{
		HostTrace::Line(TEXT("import asset %s"), *Asset->GetPathName());
		HostAssets::Add(*Asset);
	}
	return Asset;
}
