// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the header tool's sources are written with.
#pragma once

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
} // namespace HostReflection

/** Announces the types of a library while it is loaded; they are made when the object system is ready for them. */
struct FRegisterCompiledInInfo
{
	using FMake = UStruct* (*)();

	COREUOBJECT_API FRegisterCompiledInInfo(std::initializer_list<FMake> Makers);
};

#define HOST_DEFINE_TYPE(Kind, Name, Member, Function)                                                                 \
	Kind* Z_Construct_##Kind##_##Name()                                                                                \
	{                                                                                                                  \
		static Kind* const Type = Z_Construct_##Kind##_##Name##_Statics::Make();                                       \
		return Type;                                                                                                   \
	}                                                                                                                  \
	Kind* Name::Member()                                                                                               \
	{                                                                                                                  \
		return Z_Construct_##Kind##_##Name();                                                                          \
	}                                                                                                                  \
	template <>                                                                                                        \
	Kind* Function<Name>()                                                                                             \
	{                                                                                                                  \
		return Z_Construct_##Kind##_##Name();                                                                          \
	}

/** A class of the host's own, without properties. @param Constructor null for an abstract class */
#define HOST_DEFINE_OWN_CLASS(Module, Prefixed, Name, Constructor)                                                     \
	UClass* Prefixed##Name::StaticClass()                                                                              \
	{                                                                                                                  \
		static UClass* const Class = HostReflection::NewClass(TEXT("/Script/" #Module), TEXT(#Name),                   \
			sizeof(Prefixed##Name), TEXT(""), Constructor, UObject::StaticClass());                                    \
		return Class;                                                                                                  \
	}

#define HOST_DEFINE_STRUCT(Name) HOST_DEFINE_TYPE(UScriptStruct, Name, StaticStruct, StaticStruct)

#define HOST_DEFINE_CLASS(Name)                                                                                        \
	HOST_DEFINE_TYPE(UClass, Name, GetPrivateStaticClass, StaticClass)                                                 \
	UClass* Z_Construct_UClass_##Name##_NoRegister()                                                                   \
	{                                                                                                                  \
		return Z_Construct_UClass_##Name();                                                                            \
	}
