// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What makes new assets of a class.
#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/UObjectGlobals.h"

class FFeedbackContext;

class UNREALED_API UFactory : public UObject
{
public:
	explicit UFactory(const FObjectInitializer& ObjectInitializer);

	static UClass* StaticClass();

	/** The way that the editor takes; falls back to the function below. */
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags,
		UObject* Context, FFeedbackContext* Warn, FName)
	{
		return FactoryCreateNew(InClass, InParent, InName, Flags, Context, Warn);
	}

	virtual UObject* FactoryCreateNew(UClass*, UObject*, FName, EObjectFlags, UObject*, FFeedbackContext*)
	{
		return nullptr;
	}

	virtual bool CanCreateNew() const { return bCreateNew; }

	/** Whether the file is one of the factory's; the base answers for none. */
	virtual bool FactoryCanImport(const FString&) { return false; }

	/** Makes an asset of a file, or fills the one that has the name. Null when that fails. */
	virtual UObject* FactoryCreateFile(UClass*, UObject*, FName, EObjectFlags, const FString&, const TCHAR*,
		FFeedbackContext*, bool& bOutOperationCanceled)
	{
		bOutOperationCanceled = false;
		return nullptr;
	}

	/** Whether the content browser offers the factory for new assets. */
	virtual bool ShouldShowInNewMenu() const { return CanCreateNew(); }

	TSubclassOf<UObject> SupportedClass;

	/** Each "<extension>;<description>". */
	TArray<FString> Formats;

	/** Whether a new asset is opened at once. */
	uint32 bEditAfterNew : 1 = false;

	/** Whether the content browser imports files by it. */
	uint32 bEditorImport : 1 = false;

protected:
	uint32 bCreateNew : 1 = false;
};
