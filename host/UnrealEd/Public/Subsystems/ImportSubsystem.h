// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Host/Trace.h"
#include "UObject/Object.h"

class UFactory;

/** Tells others of imports; here, the trace. */
class UImportSubsystem
{
public:
	void BroadcastAssetPreImport(UFactory*, UClass*, UObject* InParent, const FName& Name, const TCHAR* Type)
	{
		HostTrace::Line(TEXT("pre import %s %s.%s"), Type, *InParent->GetPathName(), *Name.ToString());
	}

	void BroadcastAssetPostImport(UFactory*, UObject* InCreatedObject)
	{
		HostTrace::Line(TEXT("post import %s"), InCreatedObject ? *InCreatedObject->GetPathName() : TEXT("nothing"));
	}
};
