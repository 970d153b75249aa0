// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Editor.h"
#include "TonalithDisplayManager.h"
#include "TonalithEditorModule.h"
#include "TonalithRuntime.h"
#include "UnrealClient.h"

void FTonalithEditorModule::OnPreBeginPIE(const bool)
{
	PendingPIEConfiguration =
		&GetTonalithDisplayManager().FindOrAddDisplayConfiguration(GEditor->GetActiveViewport()->GetClient());
}

void FTonalithEditorModule::OnPostPIEStarted(const bool)
{
	// The look was handed over when the game viewport was made; nothing is left to do.
}

void FTonalithEditorModule::OnGameViewportClientCreated()
{
	FTonalithDisplayConfiguration& PlayConfiguration =
		GetTonalithDisplayManager().FindOrAddDisplayConfiguration(GEditor->GetPIEViewport()->GetClient());
	if (PendingPIEConfiguration->Look)
	{
		PlayConfiguration = *PendingPIEConfiguration;
	}
}
