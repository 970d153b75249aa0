// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What writes objects into files.
#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/UObjectGlobals.h"

class FExportObjectInnerContext;
class FFeedbackContext;

class ENGINE_API UExporter : public UObject
{
public:
	explicit UExporter(const FObjectInitializer& ObjectInitializer);

	static UClass* StaticClass();

	/** A new one of the first class that supports the object and the extension; null when there is none. */
	static UExporter* FindExporter(UObject* Object, const TCHAR* Extension);

	/** Only exporters of text. @return 1, or 0 when nothing was written */
	static int32 ExportToFile(UObject* Object, UExporter* Exporter, const TCHAR* Filename, bool bInSelectedOnly,
		bool bNoReplaceIdentical = false, bool bPrompt = false);

	virtual bool ExportText(
		const FExportObjectInnerContext*, UObject*, const TCHAR*, FOutputDevice&, FFeedbackContext*, uint32 = 0)
	{
		return false;
	}

	TSubclassOf<UObject> SupportedClass;

	/** Side by side. */
	TArray<FString> FormatExtension;
	TArray<FString> FormatDescription;

	int32 PreferredFormatIndex = 0;
	uint32 bText : 1 = false;
};
