// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Factories/Factory.h"

#include "UObject/GeneratedCppIncludes.h"

UFactory::UFactory(const FObjectInitializer& ObjectInitializer) : UObject(ObjectInitializer) {}

HOST_DEFINE_OWN_CLASS(UnrealEd, U, Factory, nullptr)
