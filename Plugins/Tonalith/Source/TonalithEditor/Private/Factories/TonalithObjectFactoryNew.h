// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Makes new looks in the content browser.
#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"

#include "TonalithObjectFactoryNew.generated.h"

/** Implements a factory for UTonalithObject objects. */
UCLASS(MinimalAPI)
class UTonalithObjectFactoryNew : public UFactory
{
	GENERATED_BODY()

public:
	UTonalithObjectFactoryNew(const FObjectInitializer& ObjectInitializer);

	using UFactory::FactoryCreateNew;

	/**
	 * Makes a look with the runtime module's defaults, owned by the parent.
	 * @param InClass UTonalithObject or a class below it; fatal for any other
	 */
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags,
		UObject* Context, FFeedbackContext* Warn) override;
};
