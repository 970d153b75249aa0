// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ObjectConfig.h"
#include "UObject/GeneratedCppIncludes.h"

namespace
{
std::vector<FRegisterCompiledInInfo::FMake> PendingTypes;

/** A type object of the given class. */
template <class T>
T* NewType(UClass* TypeClass, UObject* Outer, const TCHAR* Name)
{
	T* Type = static_cast<T*>(::operator new(sizeof(T)));
	const FObjectInitializer Initializer(Type, TypeClass, Outer, FName(Name), RF_Public | RF_Standalone);
	return new (Type) T();
}
} // namespace

/** Classes that the object system itself is made of; they lie in no package. */
#define HOST_CORE_CLASS(Type, Name, Super)                                                                             \
	UClass* Type::StaticClass()                                                                                        \
	{                                                                                                                  \
		static UClass* const Class = HostReflection::NewClass(                                                         \
			nullptr, TEXT(Name), sizeof(Type), TEXT(""), &HostReflection::Construct<Type>, Super);                     \
		return Class;                                                                                                  \
	}

HOST_CORE_CLASS(UObject, "Object", nullptr)
HOST_CORE_CLASS(UClass, "Class", UObject::StaticClass())
HOST_CORE_CLASS(UScriptStruct, "ScriptStruct", UObject::StaticClass())
HOST_CORE_CLASS(UPackage, "Package", UObject::StaticClass())

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
	UClass* Class =
		NewType<UClass>(Package ? UClass::StaticClass() : nullptr, Package ? CreatePackage(Package) : nullptr, Name);
	Class->SuperStruct = Super;
	Class->PropertiesSize = static_cast<int32>(Size);
	Class->ClassConfigName = FName(ConfigName);
	Class->ClassConstructor = Constructor;
	return Class;
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
	PendingTypes.insert(PendingTypes.end(), Makers);
}

void ProcessNewlyLoadedUObjects()
{
	if (!UObjectInitialized())
	{
		return;
	}
	std::vector<UStruct*> Types;
	for (const FRegisterCompiledInInfo::FMake Make : std::exchange(PendingTypes, {}))
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
