// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include "Modules/ModuleManager.h"

namespace
{
/** In the order in which they were made. */
std::vector<UObject*> Objects;

bool bInitialized = false;

TArray<FGCObject*>& Referencers()
{
	static TArray<FGCObject*> All;
	return All;
}

template <typename Predicate>
void DestroyWhere(Predicate Pred)
{
	// An object may make or destroy others in its destructor: no iterator is kept.
	const auto Newest = [Pred] { return std::find_if(Objects.rbegin(), Objects.rend(), Pred); };
	for (auto Found = Newest(); Found != Objects.rend(); Found = Newest())
	{
		(*Found)->BeginDestroy();
		delete *Found;
	}
}
} // namespace

bool UObjectInitialized()
{
	return bInitialized;
}

void HostObjects::Init() noexcept
{
	bInitialized = true;
	FModuleManager::Get().OnProcessLoadedObjectsCallback().Add(
		FSimpleDelegate::CreateStatic(&ProcessNewlyLoadedUObjects));
	ProcessNewlyLoadedUObjects();
}

void HostObjects::Shutdown()
{
	DestroyWhere([](const UObject*) { return true; });
	bInitialized = false;
}

size_t HostObjects::Num()
{
	return Objects.size();
}

void HostObjects::Add(UObject* Object)
{
	checkf(bInitialized, TEXT("An object was made while the object system is down."));
	Objects.push_back(Object);
}

void HostObjects::Remove(UObject* Object)
{
	std::erase(Objects, Object);
}

UObject* HostObjects::FindByName(const UObject* Outer, FName Name)
{
	const auto Found = std::find_if(Objects.begin(), Objects.end(),
		[Outer, Name](const UObject* Object)
		{ return Object->GetFName() == Name && Object->GetOuter() == Outer && !Object->IsGarbage(); });
	return Found == Objects.end() ? nullptr : *Found;
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results)
{
	for (UObject* Object : Objects)
	{
		UClass* Class = dynamic_cast<UClass*>(Object);
		if (Class && Class != ClassToLookFor && Class->IsChildOf(ClassToLookFor))
		{
			Results.Add(Class);
		}
	}
}

FGCObject::FGCObject()
{
	Referencers().Add(this);
}

FGCObject::~FGCObject()
{
	Referencers().Remove(this);
}

void FReferenceCollector::Reach(UObject* Object)
{
	if (Object && !Object->bIsReached)
	{
		Object->bIsReached = true;
		Reach(Object->OuterPrivate);
		AddReferencedObjects(*Object->GetClass(), Object);
	}
}

void FReferenceCollector::AddReferencedObjects(const UStruct& Type, void* Value)
{
	for (const UStruct* Each = &Type; Each; Each = Each->SuperStruct)
	{
		for (const auto& Property : Each->Properties)
		{
			Property->AddReferencedObjects(Value, *this);
		}
	}
}

void CollectGarbage()
{
	for (UObject* Object : Objects)
	{
		Object->bIsReached = false;
	}
	FReferenceCollector Collector;
	for (FGCObject* Referencer : Referencers())
	{
		Referencer->AddReferencedObjects(Collector);
	}
	for (UObject* Object : Objects)
	{
		const bool bStays = !Object->ClassPrivate || Object->HasAnyFlags(RF_Standalone | RF_ClassDefaultObject);
		Collector.Reach(bStays && !Object->IsGarbage() ? Object : nullptr);
	}
	DestroyWhere([](const UObject* Object) { return Object->IsGarbage() || !Object->bIsReached; });
}
