// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What each level viewport shows, kept in the per-project user settings across layouts and restarts.
#pragma once

#include "CoreMinimal.h"
#include "TonalithDisplayConfiguration.h"
#include "UObject/NoExportTypes.h"

#include "TonalithEditorSettings.generated.h"

USTRUCT()
struct FTNLPerViewportDisplaySettingPair
{
	GENERATED_BODY()

	/** Name associated with this viewport's layout to identify it. */
	UPROPERTY(config)
	FName ViewportIdentifier;

	/** Display configuration for a given viewport */
	UPROPERTY(config)
	FTonalithDisplayConfiguration DisplayConfiguration;
};

/** List of Tonalith objects associated to level viewport instances linked with an identifier */
UCLASS(config = EditorPerProjectUserSettings, MinimalAPI)
class UTonalithLevelViewportSettings : public UObject
{
	GENERATED_BODY()

public:
	// Only the default object is used: the engine reads it from the file and writes it there.

	/** The stored record of the first pair with the identifier, or null; valid until the settings change. */
	const FTonalithDisplayConfiguration* FindDisplayConfiguration(FName ViewportIdentifier) const;

	/** Overwrites the record of the first pair with the identifier, or appends a pair. */
	void SetDisplayConfiguration(FName ViewportIdentifier, const FTonalithDisplayConfiguration& DisplayConfiguration);

protected:
	/** Settings associated to each viewport that was configured */
	UPROPERTY(config)
	TArray<FTNLPerViewportDisplaySettingPair> ViewportsSettings;
};
