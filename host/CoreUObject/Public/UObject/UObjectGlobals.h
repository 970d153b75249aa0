// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Making and finding objects.
#pragma once

#include "UObject/Class.h"
#include "UObject/Package.h"

#include <new>

/** What a constructor gets: the object under construction, with its place already settled. */
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer(UObject* InObject, UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags);
	~FObjectInitializer();
	FObjectInitializer(const FObjectInitializer&) = delete;
	FObjectInitializer& operator=(const FObjectInitializer&) = delete;

	/** The innermost one under way; fatal when there is none. */
	static const FObjectInitializer& Get();

	/** Raw storage until the constructor ran. */
	UObject* GetObj() const { return Object; }

	/** Gives an object in construction its identity; nothing for an object that is not made by NewObject. */
	static void Settle(UObject& Constructed);

private:
	UObject* Object;
	UClass* Class;
	UObject* Outer;
	FName Name;
	EObjectFlags Flags;
	FObjectInitializer* Enclosing;
};

/** Makes an object. NAME_None gives a name made of the class's. Fatal for an abstract class or a name in use. */
COREUOBJECT_API UObject* StaticConstructObject(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags);

/** Fatal unless the class is a child of the base. */
COREUOBJECT_API void CheckIsClassChildOf_Internal(const UClass* Parent, const UClass* Child);

COREUOBJECT_API UPackage* GetTransientPackage();

/** Finds the package or makes it. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);

/** By its path, such as "/Game/Looks/Warm.Warm"; null when there is none of that class. */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, const TCHAR* Path);

/** As above, but an asset that is not in memory is loaded. */
COREUOBJECT_API UObject* StaticLoadObject(UClass* Class, const TCHAR* Path);

/** Makes the default objects of all types whose libraries were loaded since the last call. */
COREUOBJECT_API void ProcessNewlyLoadedUObjects();

template <class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags)
{
	CheckIsClassChildOf_Internal(T::StaticClass(), Class);
	return static_cast<T*>(StaticConstructObject(const_cast<UClass*>(Class), Outer, Name, Flags));
}

template <class T>
T* NewObject(UObject* Outer = GetTransientPackage())
{
	return NewObject<T>(Outer, T::StaticClass());
}

template <class T>
const T* GetDefault()
{
	return static_cast<const T*>(T::StaticClass()->GetDefaultObject());
}

template <class T>
T* GetMutableDefault()
{
	return static_cast<T*>(T::StaticClass()->GetDefaultObject());
}
