// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Importing assets again from the files that they came from.
#pragma once

#include "CoreMinimal.h"

class UObject;

namespace EReimportResult
{
enum Type
{
	Failed,
	Succeeded,
	Cancelled
};
}

/** Known to the manager while it lives. */
class FReimportHandler
{
public:
	UNREALED_API FReimportHandler();
	UNREALED_API virtual ~FReimportHandler();

	/** Whether it is one of the handler's assets. @param OutFilenames gets its files */
	virtual bool CanReimport(UObject* Obj, TArray<FString>& OutFilenames) = 0;

	virtual void SetReimportPaths(UObject* Obj, const TArray<FString>& NewReimportPaths) = 0;
	virtual void SetReimportPaths(UObject*, const FString&, const int32) {}

	virtual EReimportResult::Type Reimport(UObject* Obj) = 0;
	virtual EReimportResult::Type Reimport(UObject* Obj, int32) { return Reimport(Obj); }
};

class FReimportManager
{
public:
	UNREALED_API static FReimportManager* Instance();

	/** By the first handler that can. */
	UNREALED_API bool Reimport(UObject* Obj);

	/** Tells where the asset's file is now. */
	UNREALED_API void UpdateReimportPaths(UObject* Obj, const TArray<FString>& InFilenames);

private:
	friend class FReimportHandler;
	FReimportHandler* FindHandler(UObject* Obj) const;

	TArray<FReimportHandler*> Handlers;
};
