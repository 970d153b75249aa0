// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/Class.h"

#include "ObjectConfig.h"
#include "UObject/GeneratedCppIncludes.h"

namespace
{
std::vector<FRegisterCompiledInInfo::FMake>& PendingTypes()
{
	static std::vector<FRegisterCompiledInInfo::FMake> Makers;
	return Makers;
}

/** A type object of the given class. */
template <class T>
T* NewType(UClass* TypeClass, UObject* Outer, const TCHAR* Name)
{
	T* Type = static_cast<T*>(::operator new(sizeof(T)));
	const FObjectInitializer Initializer(Type, TypeClass, Outer, FName(Name), RF_Public | RF_Standalone);
	return new (Type) T();
}

/** Fills in a new class. */
UClass* Define(UClass* Class, size_t Size, const TCHAR* ConfigName, UClass::FConstructor Constructor, UClass* Super)
{
	Class->SuperStruct = Super;
	Class->PropertiesSize = static_cast<int32>(Size);
	Class->ClassConfigName = FName(ConfigName);
	Class->ClassConstructor = Constructor;
	return Class;
}

/** Classes that the object system itself is made of; they lie in no package. */
template <class T>
UClass* CoreClass(const TCHAR* Name, UClass* Super)
{
	return Define(NewType<UClass>(nullptr, nullptr, Name), sizeof(T), TEXT(""), &HostReflection::Construct<T>, Super);
}
} // namespace

UStruct::UStruct() = default;
UStruct::~UStruct() = default;

UClass* UObject::StaticClass()
{
	static UClass* const Class = CoreClass<UObject>(TEXT("Object"), nullptr);
	return Class;
}

UClass* UClass::StaticClass()
{
	static UClass* const Class = CoreClass<UClass>(TEXT("Class"), UObject::StaticClass());
	return Class;
}

UClass* UScriptStruct::StaticClass()
{
	static UClass* const Class = CoreClass<UScriptStruct>(TEXT("ScriptStruct"), UObject::StaticClass());
	return Class;
}

UClass* UPackage::StaticClass()
{
	static UClass* const Class = CoreClass<UPackage>(TEXT("Package"), UObject::StaticClass());
	return Class;
}

bool UStruct::IsChildOf(const UStruct* SomeBase) const
{
	return this == SomeBase || (SuperStruct && SuperStruct->IsChildOf(SomeBase));
}

FProperty* UStruct::FindPropertyByName(FName Name) const
{
	for (const auto& Property : Properties)
	{
		if (Property->GetFName() == Name)
		{
			return Property.get();
		}
	}
	return SuperStruct ? SuperStruct->FindPropertyByName(Name) : nullptr;
}

UObject* UClass::GetDefaultObject()
{
	if (!DefaultObject && ClassConstructor)
	{
		const FName Name(*(TEXT("Default__") + GetName()));
		DefaultObject = StaticConstructObject(this, GetOuter(), Name, RF_Public | RF_ClassDefaultObject);
		if (!ClassConfigName.IsNone())
		{
			HostConfig::Load(*DefaultObject);
		}
	}
	return DefaultObject;
}

UClass* HostReflection::NewClass(const TCHAR* Package, const TCHAR* Name, size_t Size, const TCHAR* ConfigName,
	UClass::FConstructor Constructor, UClass* Super)
{
	UClass* Class = NewType<UClass>(UClass::StaticClass(), CreatePackage(Package), Name);
	return Define(Class, Size, ConfigName, Constructor, Super);
}

UScriptStruct* HostReflection::NewStruct(const TCHAR* Package, const TCHAR* Name, size_t Size, UScriptStruct* Super)
{
	UScriptStruct* Struct = NewType<UScriptStruct>(UScriptStruct::StaticClass(), CreatePackage(Package), Name);
	Struct->SuperStruct = Super;
	Struct->PropertiesSize = static_cast<int32>(Size);
	return Struct;
}

FRegisterCompiledInInfo::FRegisterCompiledInInfo(std::initializer_list<FMake> Makers)
{
	PendingTypes().insert(PendingTypes().end(), Makers);
}

void ProcessNewlyLoadedUObjects()
{
	if (!UObjectInitialized())
	{
		return;
	}
	std::vector<UStruct*> Types;
	for (const FRegisterCompiledInInfo::FMake Make : std::exchange(PendingTypes(), {}))
	{
		Types.push_back(Make());
	}
	for (UStruct* Type : Types)
	{
		if (UClass* Class = dynamic_cast<UClass*>(Type))
		{
			Class->GetDefaultObject();
		}
	}
}
