// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/UObjectGlobals.h"

#include "UObject/UnrealType.h"

namespace
{
FName UniqueName(UObject* Outer, const UClass& Class)
{
	for (int32 Number = 0;; ++Number)
	{
		const FName Name(*FString::Printf(TEXT("%s_%d"), *Class.GetName(), Number));
		if (!HostObjects::FindByName(Outer, Name))
		{
			return Name;
		}
	}
}
} // namespace

FObjectInitializer* FObjectInitializer::Innermost = nullptr;

FObjectInitializer::FObjectInitializer(
	UObject* InObject, UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags)
	: Object(InObject), Class(InClass), Outer(InOuter), Name(InName), Flags(InFlags), Enclosing(Innermost)
{
	Innermost = this;
}

const FObjectInitializer& FObjectInitializer::Get()
{
	checkf(Innermost, TEXT("Objects of this class are made by NewObject only."));
	return *Innermost;
}

UObject* StaticConstructObject(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags)
{
	checkf(Class->ClassConstructor, TEXT("Class %s is abstract."), *Class->GetName());
	const FName Used = Name.IsNone() ? UniqueName(Outer, *Class) : Name;
	checkf(!HostObjects::FindByName(Outer, Used), TEXT("The name %s is in use."), *Used.ToString());
	UObject* Object = static_cast<UObject*>(::operator new(static_cast<size_t>(Class->PropertiesSize)));
	const FObjectInitializer Initializer(Object, Class, Outer, Used, Flags);
	Class->ClassConstructor(Initializer);
	for (const auto& Property : Class->Properties)
	{
		if (Property->HasAnyPropertyFlags(CPF_Config) && !Object->HasAnyFlags(RF_ClassDefaultObject))
		{
			Property->ReadLines(Property->ToLines(Class->GetDefaultObject()), Object);
		}
	}
	return Object;
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	const FName Name(PackageName);
	UObject* Found = HostObjects::FindByName(nullptr, Name);
	return Found ? static_cast<UPackage*>(Found) : NewObject<UPackage>(nullptr, UPackage::StaticClass(), Name);
}

UObject* StaticFindObject(UClass* Class, const TCHAR* Path)
{
	const FString Whole(Path);
	const int32 Point = Whole.Find(TEXT("."));
	UObject* Found = HostObjects::FindByName(nullptr, FName(Whole.Mid(0, Point == INDEX_NONE ? Whole.Len() : Point)));
	if (Found && Point != INDEX_NONE)
	{
		Found = HostObjects::FindByName(Found, FName(Whole.Mid(Point + 1)));
	}
	return Found && Found->IsA(Class) ? Found : nullptr;
}
