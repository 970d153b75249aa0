// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/WeakObjectPtr.h"

#include "Modules/ModuleManager.h"

#include <vector>

namespace
{
struct FObjectItem
{
	UObject* Object = nullptr;
	int32 SerialNumber = 0;
};

std::vector<FObjectItem>& Items()
{
	static std::vector<FObjectItem> Array;
	return Array;
}

bool bInitialized = false;

void DestroyWhere(bool (*Condition)(const UObject&))
{
	// An object may make or destroy others in its destructor: no iterator is kept.
	for (size_t Index = Items().size(); Index-- > 0;)
	{
		UObject* Object = Items()[Index].Object;
		if (Object && Condition(*Object))
		{
			delete Object;
		}
	}
}
} // namespace

bool UObjectInitialized()
{
	return bInitialized;
}

void HostObjects::Init()
{
	bInitialized = true;
	FModuleManager::Get().OnProcessLoadedObjectsCallback().AddStatic(&ProcessNewlyLoadedUObjects);
	ProcessNewlyLoadedUObjects();
}

void HostObjects::Shutdown()
{
	DestroyWhere([](const UObject&) { return true; });
	bInitialized = false;
}

int32 HostObjects::Add(UObject* Object)
{
	checkf(bInitialized, TEXT("An object was made while the object system is down."));
	static int32 LastSerialNumber = 0;
	for (size_t Index = 0; Index < Items().size(); ++Index)
	{
		if (!Items()[Index].Object)
		{
			Items()[Index] = {Object, ++LastSerialNumber};
			return static_cast<int32>(Index);
		}
	}
	Items().push_back({Object, ++LastSerialNumber});
	return static_cast<int32>(Items().size() - 1);
}

void HostObjects::Remove(int32 Index)
{
	Items()[static_cast<size_t>(Index)].Object = nullptr;
}

int32 HostObjects::SerialNumber(int32 Index)
{
	return Items()[static_cast<size_t>(Index)].SerialNumber;
}

UObject* HostObjects::Find(int32 Index, int32 SerialNumber)
{
	if (Index < 0 || static_cast<size_t>(Index) >= Items().size())
	{
		return nullptr;
	}
	const FObjectItem& Item = Items()[static_cast<size_t>(Index)];
	return Item.Object && Item.SerialNumber == SerialNumber && !Item.Object->IsGarbage() ? Item.Object : nullptr;
}

UObject* HostObjects::FindByName(const UObject* Outer, FName Name)
{
	for (const FObjectItem& Item : Items())
	{
		if (Item.Object && Item.Object->GetFName() == Name && Item.Object->GetOuter() == Outer &&
			!Item.Object->IsGarbage())
		{
			return Item.Object;
		}
	}
	return nullptr;
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results)
{
	for (const FObjectItem& Item : Items())
	{
		UClass* Class = dynamic_cast<UClass*>(Item.Object);
		if (Class && Class != ClassToLookFor && Class->IsChildOf(ClassToLookFor))
		{
			Results.Add(Class);
		}
	}
}

void CollectGarbage()
{
	DestroyWhere([](const UObject& Object) { return Object.IsGarbage(); });
}

FWeakObjectPtr& FWeakObjectPtr::operator=(const UObject* Object)
{
	ObjectIndex = Object ? Object->GetUniqueID() : -1;
	ObjectSerialNumber = Object ? HostObjects::SerialNumber(ObjectIndex) : 0;
	return *this;
}

UObject* FWeakObjectPtr::Get() const
{
	return HostObjects::Find(ObjectIndex, ObjectSerialNumber);
}
