// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The base of all engine objects. The object array owns them: they die by CollectGarbage or at the editor's exit.
#pragma once

#include "UObject/ObjectMacros.h"
#include "UObject/UObjectBase.h"

#include <memory>

class FConfigCacheIni;
struct FPropertyChangedEvent;
extern CORE_API FConfigCacheIni* GConfig;

/** What a constructor gets: the object under construction, with its place already settled. */
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer(UObject* InObject, UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags);
	~FObjectInitializer() { Innermost = Enclosing; }
	FObjectInitializer(const FObjectInitializer&) = delete;
	FObjectInitializer& operator=(const FObjectInitializer&) = delete;

	/** The innermost one under way; fatal when there is none. */
	static const FObjectInitializer& Get();

	/** Raw storage until the constructor ran. */
	UObject* GetObj() const { return Object; }

private:
	friend class UObject;

	static FObjectInitializer* Innermost;

	UObject* Object;
	UClass* Class;
	UObject* Outer;
	FName Name;
	EObjectFlags Flags;
	FObjectInitializer* Enclosing;
};

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
	FString GetPathName() const
	{
		return (OuterPrivate ? OuterPrivate->GetPathName() + TEXT(".") : FString()) + GetName();
	}

	bool IsA(const UClass* SomeBase) const;

	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) != 0; }

	/** The object's destruction begins; what overrides this calls it last. */
	virtual void BeginDestroy() {}

	/** Has the transaction under way, if there is one, keep the object as it is. */
	bool Modify(bool bAlwaysMarkDirty = true);

	/** A property is about to change; null for any. */
	virtual void PreEditChange(class FProperty*) { Modify(); }

	/** Any property was changed. */
	void PostEditChange();

	/** A change was taken back by a user. */
	virtual void PostEditUndo();

	/** A property was changed by a user; null for any. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent&) {}

	/** Weak pointers give null from now on; the next collection destroys the object. */
	void MarkAsGarbage() { bIsGarbage = true; }

	bool IsGarbage() const { return bIsGarbage; }

	/**
	 * Writes the properties that have one of the flags into the class's config file (or the one named), at once; the rest
	 * of the file stays. Nothing for a class without config. Of the default object nothing has to be copied to it.
	 */
	void SaveConfig(uint64 RequiredPropertyFlags = CPF_Config, const TCHAR* Filename = nullptr,
		FConfigCacheIni* Config = GConfig, bool bAllowCopyToDefaultObject = true);

private:
	friend class FWeakObjectPtr;
	friend class FReferenceCollector;
	friend COREUOBJECT_API void CollectGarbage();

	UClass* ClassPrivate = nullptr;
	UObject* OuterPrivate = nullptr;
	FName NamePrivate;
	EObjectFlags ObjectFlags = RF_NoFlags;
	bool bIsGarbage = false;
	bool bIsReached = false;

	/** Owns nothing; what weak pointers watch. */
	const std::shared_ptr<UObject> Watched{this, [](UObject*) {}};
};

/** Whether it is an object that is no garbage. */
inline bool IsValid(const UObject* Test)
{
	return Test && !Test->IsGarbage();
}

/**
 * Destroys the garbage, and what nobody refers to. What stays without a reference: default objects, objects flagged
 * RF_Standalone, and those that the host makes without NewObject.
 */
COREUOBJECT_API void CollectGarbage();
