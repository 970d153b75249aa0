// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Factories/TonalithObjectFactoryNew.h"

#include "TonalithObject.h"
#include "UObject/UObjectGlobals.h"

UTonalithObjectFactoryNew::UTonalithObjectFactoryNew(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SupportedClass = UTonalithObject::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UTonalithObjectFactoryNew::FactoryCreateNew(
	UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return NewObject<UTonalithObject>(InParent, InClass, InName, Flags);
}
