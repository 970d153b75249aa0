// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "EditorReimportHandler.h"

#include "Host/Trace.h"
#include "UObject/Object.h"

FReimportHandler::FReimportHandler()
{
	FReimportManager::Instance()->Handlers.Add(this);
}

FReimportHandler::~FReimportHandler()
{
	FReimportManager::Instance()->Handlers.Remove(this);
}

FReimportManager* FReimportManager::Instance()
{
	static FReimportManager Manager;
	return &Manager;
}

FReimportHandler* FReimportManager::FindHandler(UObject* Obj) const
{
	TArray<FString> Filenames;
	for (FReimportHandler* Handler : Handlers)
	{
		if (Handler->CanReimport(Obj, Filenames))
		{
			return Handler;
		}
	}
	return nullptr;
}

bool FReimportManager::Reimport(UObject* Obj)
{
	FReimportHandler* const Handler = FindHandler(Obj);
	HostTrace::Line(TEXT("reimport asset %s"), *Obj->GetPathName());
	return Handler && Handler->Reimport(Obj) == EReimportResult::Succeeded;
}

void FReimportManager::UpdateReimportPaths(UObject* Obj, const TArray<FString>& InFilenames)
{
	if (FReimportHandler* const Handler = FindHandler(Obj))
	{
		Handler->SetReimportPaths(Obj, InFilenames);
	}
}
