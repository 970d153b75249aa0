// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Imports .cube files as looks.
#pragma once

#include "CoreMinimal.h"
#include "EditorReimportHandler.h"
#include "Factories/Factory.h"

#include "TonalithCubeFactory.generated.h"

/** Game thread. A file that cannot be read leaves everything as it was, with one line for the user and in the log. */
UCLASS()
class UTonalithCubeFactory
	: public UFactory
	, public FReimportHandler
{
	GENERATED_BODY()

public:
	UTonalithCubeFactory(const FObjectInitializer& ObjectInitializer);

	/** By its extension, in upper or lower case. */
	virtual bool FactoryCanImport(const FString& Filename) override;

	/**
	 * Makes a look with the file's table. A look that has the name gets the table in place of its own, as a step to undo,
	 * and keeps its controls and what refers to it. Null when the file cannot be read, or the name is another asset's.
	 * @param InClass UTonalithObject or a class below it
	 * @param Warn may be null
	 */
	virtual UObject* FactoryCreateFile(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags,
		const FString& Filename, const TCHAR* Parms, FFeedbackContext* Warn, bool& bOutOperationCanceled) override;

	using FReimportHandler::Reimport;
	using FReimportHandler::SetReimportPaths;

	/** Looks that came from a file. */
	virtual bool CanReimport(UObject* Obj, TArray<FString>& OutFilenames) override;
	virtual void SetReimportPaths(UObject* Obj, const TArray<FString>& NewReimportPaths) override;
	virtual EReimportResult::Type Reimport(UObject* Obj) override;
};
