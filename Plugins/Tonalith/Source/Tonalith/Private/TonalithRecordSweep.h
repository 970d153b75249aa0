// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Drops the display records of viewports that are gone: a later client at the same address would get them, and their
// looks would live for good.
#pragma once

#if WITH_EDITOR

#include "CoreMinimal.h"

class FTonalithDisplayManager;

/** Sweeps when the editor's viewports change and when a play session has ended. Game thread. */
class FTonalithRecordSweep final
{
public:
	/** @param InDisplayManager must outlive the sweep */
	explicit FTonalithRecordSweep(FTonalithDisplayManager& InDisplayManager);

	/** The editor may be gone by now. */
	~FTonalithRecordSweep();

	FTonalithRecordSweep(const FTonalithRecordSweep&) = delete;
	FTonalithRecordSweep& operator=(const FTonalithRecordSweep&) = delete;

private:
	void OnShutdownPIE(const bool bIsSimulating);

	/** Keeps the records of the editor's viewports and of the games that run in it. */
	void Sweep();

	FTonalithDisplayManager& DisplayManager;
};

#endif
