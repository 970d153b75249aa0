// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Transactions.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

UObject::UObject()
{
	HostObjects::Add(this);
	// Objects that the host makes without NewObject have no initializer of their own.
	const FObjectInitializer* Initializer = FObjectInitializer::Innermost;
	if (Initializer && Initializer->Object == this)
	{
		ClassPrivate = Initializer->Class;
		OuterPrivate = Initializer->Outer;
		NamePrivate = Initializer->Name;
		ObjectFlags = Initializer->Flags;
	}
}

UObject::UObject(const FObjectInitializer&) : UObject() {}

UObject::~UObject()
{
	HostObjects::Remove(this);
}

UPackage* UObject::GetPackage() const
{
	return OuterPrivate ? OuterPrivate->GetPackage() : static_cast<UPackage*>(const_cast<UObject*>(this));
}

bool UObject::MarkPackageDirty() const
{
	GetPackage()->SetDirtyFlag(true);
	return true;
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	HostTransactions::Keep(*this);
	return bAlwaysMarkDirty && MarkPackageDirty();
}

void UObject::PostEditChange()
{
	FPropertyChangedEvent Event(nullptr);
	PostEditChangeProperty(Event);
}

void UObject::PostEditUndo()
{
	PostEditChange();
}

bool UObject::IsA(const UClass* SomeBase) const
{
	return GetClass()->IsChildOf(SomeBase);
}
