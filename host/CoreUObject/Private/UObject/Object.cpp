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

UPackage* UObject::GetPackage() const
{
	const UObject* Outermost = this;
	while (Outermost->OuterPrivate)
	{
		Outermost = Outermost->OuterPrivate;
	}
	return static_cast<UPackage*>(const_cast<UObject*>(Outermost));
}

bool UObject::MarkPackageDirty() const
{
	GetPackage()->SetDirtyFlag(true);
	return true;
}

bool UObject::IsA(const UClass* SomeBase) const
{
	return GetClass()->IsChildOf(SomeBase);
}
