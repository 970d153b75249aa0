// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Factories/Factory.h"

#include "UObject/GeneratedCppIncludes.h"

UFactory::UFactory(const FObjectInitializer& ObjectInitializer) : UObject(ObjectInitializer) {}

UClass* UFactory::StaticClass()
{
	static UClass* const Class = HostReflection::NewClass(
		TEXT("/Script/UnrealEd"), TEXT("Factory"), sizeof(UFactory), TEXT(""), nullptr, UObject::StaticClass());
	return Class;
}
