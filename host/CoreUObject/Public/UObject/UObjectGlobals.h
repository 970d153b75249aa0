// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Making and finding objects.
#pragma once

#include "UObject/Package.h"

/** Makes an object; config properties are as in the default object. NAME_None gives a name made of the class's. Fatal for an abstract class or a name in use. */
COREUOBJECT_API UObject* StaticConstructObject(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags);

/** Finds the package or makes it. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);

/** By its path, such as "/Game/Looks/Warm.Warm"; null when there is none of that class. */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, const TCHAR* Path);

/** The object of that name directly in the outer one, without one by its path; null when there is none of that class. */
template <class T>
T* FindObject(UObject* Outer, const TCHAR* Name)
{
	const FString Path = Outer ? Outer->GetPathName() + TEXT(".") + Name : FString(Name);
	return static_cast<T*>(StaticFindObject(T::StaticClass(), *Path));
}

/** As above, but an asset that is not in memory is loaded. */
COREUOBJECT_API UObject* StaticLoadObject(UClass* Class, const TCHAR* Path);

/** Makes the default objects of all types whose libraries were loaded since the last call. */
COREUOBJECT_API void ProcessNewlyLoadedUObjects();

template <class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags)
{
	checkf(Class && Class->IsChildOf(T::StaticClass()), TEXT("NewObject called with %s, which is no child of %s"),
		Class ? *Class->GetPathName() : TEXT("no class"), *T::StaticClass()->GetPathName());
	return static_cast<T*>(StaticConstructObject(const_cast<UClass*>(Class), Outer, Name, Flags));
}

/** Of objects that are not saved. */
inline UPackage* GetTransientPackage()
{
	return CreatePackage(TEXT("/Engine/Transient"));
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
