// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithCubeFactory.h"

#include "CubeFile.h"
#include "Editor.h"
#include "EditorFramework/AssetImportData.h"
#include "Misc/FeedbackContext.h"
#include "Misc/Paths.h"
#include "ScopedTransaction.h"
#include "Subsystems/ImportSubsystem.h"
#include "Templates/Casts.h"
#include "TonalithObject.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "TonalithLookFiles"

DEFINE_LOG_CATEGORY_STATIC(LogTonalithLookFiles, Log, All);

namespace
{
void Report(const FString& Fault, FFeedbackContext* Warn)
{
	UE_LOG(LogTonalithLookFiles, Error, TEXT("%s"), *Fault);
	if (Warn)
	{
		Warn->Logf(ELogVerbosity::Error, TEXT("%s"), *Fault);
	}
}

/** Gives the look a file's table, and remembers the file. */
void Fill(UTonalithObject& Look, const FTonalithLookTable& Table, const FString& Filename)
{
	Look.PreEditChange(nullptr);
	Look.SetTable(Table);
	if (!Look.AssetImportData)
	{
		Look.AssetImportData =
			NewObject<UAssetImportData>(&Look, UAssetImportData::StaticClass(), NAME_None, RF_Transactional);
	}
	Look.AssetImportData->Modify();
	Look.AssetImportData->Update(FPaths::ConvertRelativePathToFull(Filename));
	Look.PostEditChange();
	Look.MarkPackageDirty();
}

UTonalithObject* Import(
	UClass* Class, UObject* Parent, FName Name, EObjectFlags Flags, const FString& Filename, FFeedbackContext* Warn)
{
	UObject* const Found = FindObject<UObject>(Parent, *Name.ToString());
	UTonalithObject* Look = Cast<UTonalithObject>(Found);
	FTonalithLookTable Table;
	FString Fault;
	if (Found && !Look)
	{
		Fault = Filename + TEXT(": the name is taken by an asset that is no look, ") + Found->GetPathName();
	}
	if (!Fault.IsEmpty() || !ReadCubeFile(Filename, Table, Fault))
	{
		Report(Fault, Warn);
		return nullptr;
	}
	const FScopedTransaction Transaction(LOCTEXT("Import", "Import Lookup Table"), Look != nullptr);
	Look = Look ? Look : NewObject<UTonalithObject>(Parent, Class, Name, Flags);
	Fill(*Look, Table, Filename);
	return Look;
}
} // namespace

UTonalithCubeFactory::UTonalithCubeFactory(const FObjectInitializer& ObjectInitializer) : Super(ObjectInitializer)
{
	SupportedClass = UTonalithObject::StaticClass();
	Formats.Add(TEXT("cube;Color lookup table"));
	bCreateNew = false;
	bEditorImport = true;
}

bool UTonalithCubeFactory::FactoryCanImport(const FString& Filename)
{
	return FPaths::GetExtension(Filename) == TEXT("cube");
}

UObject* UTonalithCubeFactory::FactoryCreateFile(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags,
	const FString& Filename, const TCHAR*, FFeedbackContext* Warn, bool& bOutOperationCanceled)
{
	bOutOperationCanceled = false;
	UImportSubsystem* const Imports = GEditor ? GEditor->GetEditorSubsystem<UImportSubsystem>() : nullptr;
	if (Imports)
	{
		Imports->BroadcastAssetPreImport(this, InClass, InParent, InName, TEXT("cube"));
	}
	UTonalithObject* const Look = Import(InClass, InParent, InName, Flags, Filename, Warn);
	if (Imports)
	{
		Imports->BroadcastAssetPostImport(this, Look);
	}
	return Look;
}

bool UTonalithCubeFactory::CanReimport(UObject* Obj, TArray<FString>& OutFilenames)
{
	const UTonalithObject* const Look = Cast<UTonalithObject>(Obj);
	if (!Look || !Look->AssetImportData)
	{
		return false;
	}
	OutFilenames.Add(Look->AssetImportData->GetFirstFilename());
	return true;
}

void UTonalithCubeFactory::SetReimportPaths(UObject* Obj, const TArray<FString>& NewReimportPaths)
{
	const UTonalithObject* const Look = Cast<UTonalithObject>(Obj);
	if (Look && Look->AssetImportData && NewReimportPaths.Num() == 1)
	{
		Look->AssetImportData->UpdateFilenameOnly(NewReimportPaths[0]);
	}
}

EReimportResult::Type UTonalithCubeFactory::Reimport(UObject* Obj)
{
	TArray<FString> Filenames;
	const bool bIsImported = CanReimport(Obj, Filenames) && Import(Obj->GetClass(), Obj->GetOuter(), Obj->GetFName(),
																RF_NoFlags, Filenames[0], nullptr);
	return bIsImported ? EReimportResult::Succeeded : EReimportResult::Failed;
}

#undef LOCTEXT_NAMESPACE
