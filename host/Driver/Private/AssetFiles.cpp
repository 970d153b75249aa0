// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/AssetFiles.h"

#include "Editor.h"
#include "EditorDriver.h"
#include "EditorReimportHandler.h"
#include "Exporters/Exporter.h"
#include "Misc/Paths.h"
#include "UObject/UObjectGlobals.h"

UObject& FEditorDriver::Asset(const FString& Path) const
{
	UObject* const Found = StaticLoadObject(UObject::StaticClass(), *Path);
	if (!Found)
	{
		throw FDriverError(FString::Printf(TEXT("no asset \"%s\""), *Path));
	}
	return *Found;
}

TArray<UObject*> FEditorDriver::ImportFiles(const TArray<FString>& Files, const FString& Folder)
{
	TArray<UObject*> Assets;
	for (const FString& File : Files)
	{
		Assets.Add(HostContentBrowser::Import(File, Folder));
	}
	return Assets;
}

bool FEditorDriver::Reimport(const FString& Path)
{
	return FReimportManager::Instance()->Reimport(&Asset(Path));
}

void FEditorDriver::Export(const FString& Path, const FString& File)
{
	UExporter* const Exporter = UExporter::FindExporter(&Asset(Path), *FPaths::GetExtension(File));
	if (!Exporter || !UExporter::ExportToFile(&Asset(Path), Exporter, *File, false))
	{
		throw FDriverError(FString::Printf(TEXT("%s cannot be exported to %s"), *Path, *File));
	}
}

void FEditorDriver::Undo()
{
	if (!GEditor->UndoTransaction())
	{
		throw FDriverError(TEXT("there is nothing to undo"));
	}
}
