// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "UObject/UObjectGlobals.h"

/** Which file an asset was imported from. Saved with the asset, as the path alone. */
class ENGINE_API UAssetImportData : public UObject
{
public:
	using UObject::UObject;

	static UClass* StaticClass();

	/** After an import. */
	void Update(const FString& AbsoluteFilename) { SourceFile = AbsoluteFilename; }

	/** The file has moved. */
	void UpdateFilenameOnly(const FString& InPath) { SourceFile = InPath; }

	FString GetFirstFilename() const { return SourceFile; }

private:
	friend FString Write(const TObjectPtr<UAssetImportData>& Value) { return Value ? Value->SourceFile : FString(); }

	friend void Read(const FString& Text, TObjectPtr<UAssetImportData>& OutValue)
	{
		OutValue = Text.IsEmpty() ? nullptr : NewObject<UAssetImportData>();
		if (OutValue)
		{
			OutValue->SourceFile = Text;
		}
	}

	FString SourceFile;
};
