// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Exports looks as .cube files.
#pragma once

#include "CoreMinimal.h"
#include "Exporters/Exporter.h"

#include "TonalithCubeExporter.generated.h"

/** The whole look, controls and table, as one table that other programs read. Game thread. */
UCLASS(config = EditorPerProjectUserSettings)
class UTonalithCubeExporter : public UExporter
{
	GENERATED_BODY()

public:
	UTonalithCubeExporter(const FObjectInitializer& ObjectInitializer);

	/** Writes ASCII, lines that end with LF. @return false for an object that is no look */
	virtual bool ExportText(const FExportObjectInnerContext* Context, UObject* Object, const TCHAR* Type,
		FOutputDevice& Ar, FFeedbackContext* Warn, uint32 PortFlags = 0) override;

	/** Whether tables have 65 samples a side instead of 33. */
	UPROPERTY(config)
	bool bFine = false;
};
