// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The base of all engine objects. The object array owns them: they die by CollectGarbage or at the editor's exit.
#pragma once

#include "UObject/ObjectMacros.h"
#include "UObject/UObjectBase.h"

class FConfigCacheIni;
extern CORE_API FConfigCacheIni* GConfig;

class COREUOBJECT_API UObject
{
public:
	UObject();
	explicit UObject(const FObjectInitializer& ObjectInitializer);
	virtual ~UObject();
	UObject(const UObject&) = delete;
	UObject& operator=(const UObject&) = delete;

	static UClass* StaticClass();

	/** Objects that the host makes without NewObject are of class Object and have no name. */
	UClass* GetClass() const { return ClassPrivate ? ClassPrivate : StaticClass(); }

	/** Null for packages. */
	UObject* GetOuter() const { return OuterPrivate; }

	/** The outermost object; a package gives itself. */
	class UPackage* GetPackage() const;

	/** Tells that the object's file has to be saved. */
	bool MarkPackageDirty() const;

	FName GetFName() const { return NamePrivate; }

	FString GetName() const { return NamePrivate.ToString(); }

	/** The names from the package inwards, joined by ".". */
	FString GetPathName() const;

	bool IsA(const UClass* SomeBase) const;

	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) != 0; }

	/** Weak pointers give null from now on; the next collection destroys the object. */
	void MarkAsGarbage() { bIsGarbage = true; }

	bool IsGarbage() const { return bIsGarbage; }

	int32 GetUniqueID() const { return InternalIndex; }

	/**
	 * Writes the properties that have one of the flags into the class's config file (or the one named), at once; the rest
	 * of the file stays. Nothing for a class without config. Of the default object nothing has to be copied to it.
	 */
	void SaveConfig(uint64 RequiredPropertyFlags = CPF_Config, const TCHAR* Filename = nullptr,
		FConfigCacheIni* Config = GConfig, bool bAllowCopyToDefaultObject = true);

private:
	friend class FObjectInitializer;

	UClass* ClassPrivate = nullptr;
	UObject* OuterPrivate = nullptr;
	FName NamePrivate;
	EObjectFlags ObjectFlags = RF_NoFlags;
	int32 InternalIndex;
	bool bIsGarbage = false;
};

/** Destroys all objects that are marked as garbage. */
COREUOBJECT_API void CollectGarbage();
