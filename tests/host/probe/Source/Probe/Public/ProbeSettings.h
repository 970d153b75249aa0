// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Config properties of every kind.
#pragma once

#include "CoreMinimal.h"
#include "UObject/NoExportTypes.h"
#include "UObject/ObjectPtr.h"

#include "ProbeSettings.generated.h"

USTRUCT()
struct FProbeInner
{
	GENERATED_BODY()

	UPROPERTY(config)
	float Share = 0.5f;

	UPROPERTY(config)
	bool bFlag = true;
};

USTRUCT()
struct FProbeEntry
{
	GENERATED_BODY()

	UPROPERTY(config)
	FName Name;

	UPROPERTY()
	TObjectPtr<UObject> Object;

	UPROPERTY(config)
	FProbeInner Inner;
};

UCLASS(config = ProbeSettings, MinimalAPI)
class UProbeSettings : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(config)
	float Share = 0.25f;

	UPROPERTY(config)
	TArray<FProbeEntry> Entries;

	/** Not in the file. */
	UPROPERTY(EditAnywhere, Category = "Probe")
	float Forgotten = 1.0f;
};
