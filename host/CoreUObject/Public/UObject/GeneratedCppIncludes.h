// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the header tool's sources are written with.
#pragma once

#include "UObject/ObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <initializer_list>
#include <memory>

namespace HostReflection
{
/** Calls the constructor that takes the initializer, or else the default one. */
template <class T>
void Construct(const FObjectInitializer& Initializer)
{
	void* const Storage = Initializer.GetObj();
	if constexpr (std::is_constructible_v<T, const FObjectInitializer&>)
	{
		new (Storage) T(Initializer);
	}
	else
	{
		new (Storage) T();
	}
}

/** @param ConfigName empty for a class without config. @param Constructor null for an abstract class */
COREUOBJECT_API UClass* NewClass(const TCHAR* Package, const TCHAR* Name, size_t Size, const TCHAR* ConfigName,
	UClass::FConstructor Constructor, UClass* Super);

COREUOBJECT_API UScriptStruct* NewStruct(const TCHAR* Package, const TCHAR* Name, size_t Size, UScriptStruct* Super);

template <class T>
void AddProperty(UStruct* Type, const FPropertyDeclaration& Declaration)
{
	Type->Properties.push_back(std::make_unique<FProperty>(Declaration, std::type_identity<T>()));
}
} // namespace HostReflection

/** Announces the types of a library while it is loaded; they are made when the object system is ready for them. */
struct FRegisterCompiledInInfo
{
	using FMake = UStruct* (*)();

	COREUOBJECT_API FRegisterCompiledInInfo(std::initializer_list<FMake> Makers);
};

#define HOST_DEFINE_STRUCT(Name)                                                                                       \
	UScriptStruct* Z_Construct_UScriptStruct_##Name()                                                                  \
	{                                                                                                                  \
		static UScriptStruct* const Type = Z_Construct_UScriptStruct_##Name##_Statics::Make();                         \
		return Type;                                                                                                   \
	}                                                                                                                  \
	UScriptStruct* Name::StaticStruct()                                                                                \
	{                                                                                                                  \
		return Z_Construct_UScriptStruct_##Name();                                                                     \
	}                                                                                                                  \
	template <>                                                                                                        \
	UScriptStruct* StaticStruct<Name>()                                                                                \
	{                                                                                                                  \
		return Z_Construct_UScriptStruct_##Name();                                                                     \
	}

#define HOST_DEFINE_CLASS(Name)                                                                                        \
	UClass* Z_Construct_UClass_##Name()                                                                                \
	{                                                                                                                  \
		static UClass* const Type = Z_Construct_UClass_##Name##_Statics::Make();                                       \
		return Type;                                                                                                   \
	}                                                                                                                  \
	UClass* Z_Construct_UClass_##Name##_NoRegister()                                                                   \
	{                                                                                                                  \
		return Z_Construct_UClass_##Name();                                                                            \
	}                                                                                                                  \
	UClass* Name::GetPrivateStaticClass()                                                                              \
	{                                                                                                                  \
		return Z_Construct_UClass_##Name();                                                                            \
	}                                                                                                                  \
	template <>                                                                                                        \
	UClass* StaticClass<Name>()                                                                                        \
	{                                                                                                                  \
		return Z_Construct_UClass_##Name();                                                                            \
	}
