// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What reflected headers are written with, and the flags of objects, classes and properties.
#pragma once

#include "CoreMinimal.h"

#include <new>

class FObjectInitializer;
class UClass;
class UObject;
class UScriptStruct;

enum EObjectFlags : uint32
{
	RF_NoFlags = 0x0,
	RF_Public = 0x1,
	RF_Standalone = 0x2,
	RF_Transactional = 0x8,
	RF_ClassDefaultObject = 0x10,
};

constexpr EObjectFlags operator|(EObjectFlags A, EObjectFlags B)
{
	return static_cast<EObjectFlags>(static_cast<uint32>(A) | static_cast<uint32>(B));
}

enum EPropertyFlags : uint64
{
	CPF_None = 0x0,
	CPF_Edit = 0x1,
	CPF_Transient = 0x2000,
	CPF_Config = 0x4000,
};

/** The class or struct of a reflected type; specialised by the header tool. */
template <class T>
UClass* StaticClass();
template <class T>
UScriptStruct* StaticStruct();

// The token behind a generated body is defined by the generated header, one for each line that needs it.
#define HOST_JOIN_INNER(File, Line, What) File##_##Line##What
#define HOST_JOIN(File, Line, What) HOST_JOIN_INNER(File, Line, What)

#define UCLASS(...)
#define USTRUCT(...)
#define UPROPERTY(...)
#define GENERATED_BODY() HOST_JOIN(CURRENT_FILE_ID, __LINE__, _GENERATED_BODY)

// What the generated header is made of.

/** The entry points of a class, which other modules may import. */
#define HOST_DECLARE_CLASS(Name, Api)                                                                                  \
	class Name;                                                                                                        \
	Api UClass* Z_Construct_UClass_##Name();                                                                           \
	Api UClass* Z_Construct_UClass_##Name##_NoRegister();                                                              \
	template <>                                                                                                        \
	Api UClass* StaticClass<Name>();

#define HOST_DECLARE_STRUCT(Name, Api)                                                                                 \
	struct Name;                                                                                                       \
	Api UScriptStruct* Z_Construct_UScriptStruct_##Name();                                                             \
	template <>                                                                                                        \
	Api UScriptStruct* StaticStruct<Name>();

#define HOST_STRUCT_BODY(Name, Api)                                                                                    \
	friend struct Z_Construct_UScriptStruct_##Name##_Statics;                                                          \
	Api static UScriptStruct* StaticStruct();

#define HOST_CLASS_BODY(Name, SuperName, Api)                                                                          \
private:                                                                                                               \
	friend struct Z_Construct_UClass_##Name##_Statics;                                                                 \
	Api static UClass* GetPrivateStaticClass();                                                                        \
                                                                                                                       \
public:                                                                                                                \
	using Super = SuperName;                                                                                           \
	static UClass* StaticClass()                                                                                       \
	{                                                                                                                  \
		return GetPrivateStaticClass();                                                                                \
	}

/** For a class that declares no constructor itself. */
#define HOST_CONSTRUCTOR(Name)                                                                                         \
	Name(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get()) : Super(ObjectInitializer) {}
