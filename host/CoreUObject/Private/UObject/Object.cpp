// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/Object.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

UObject::UObject() : InternalIndex(HostObjects::Add(this))
{
	FObjectInitializer::Settle(*this);
}

UObject::UObject(const FObjectInitializer&) : UObject() {}

UObject::~UObject()
{
	HostObjects::Remove(InternalIndex);
}

FString UObject::GetPathName() const
{
	return OuterPrivate ? OuterPrivate->GetPathName() + TEXT(".") + GetName() : GetName();
}

bool UObject::IsA(const UClass* SomeBase) const
{
	return GetClass()->IsChildOf(SomeBase);
}
