// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Types as objects: structs, classes, and what is common to both.
#pragma once

#include "UObject/Object.h"

#include <memory>
#include <vector>

class FProperty;

/** A reflected type: its properties and its base. */
class COREUOBJECT_API UStruct : public UObject
{
public:
	bool IsChildOf(const UStruct* SomeBase) const
	{
		return this == SomeBase || (SuperStruct && SuperStruct->IsChildOf(SomeBase));
	}

	/** Looks in the base too; null when there is none. */
	FProperty* FindPropertyByName(FName Name) const;

	/** Null for a type without reflected base. */
	UStruct* SuperStruct = nullptr;

	/** In bytes. */
	int32 PropertiesSize = 0;

	/** Without those of the base, in the order of declaration. */
	std::vector<std::shared_ptr<FProperty>> Properties;
};

/** A reflected struct: a plain value. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
public:
	static UClass* StaticClass();
};

/** A reflected class. */
class COREUOBJECT_API UClass : public UStruct
{
public:
	using FConstructor = void (*)(const FObjectInitializer&);

	static UClass* StaticClass();

	UClass* GetSuperClass() const { return static_cast<UClass*>(SuperStruct); }

	/** The object that holds the defaults; made on the first call, its config read from the file. */
	UObject* GetDefaultObject();

	/** Name of the config file, such as "EditorPerProjectUserSettings"; NAME_None for a class without config. */
	FName ClassConfigName;

	/** Null for abstract classes. */
	FConstructor ClassConstructor = nullptr;

private:
	UObject* DefaultObject = nullptr;
};
