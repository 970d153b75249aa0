// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithRecordSweep.h"

#if WITH_EDITOR

#include "Editor.h"
#include "EditorViewportClient.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "TonalithDisplayManager.h"

FTonalithRecordSweep::FTonalithRecordSweep(FTonalithDisplayManager& InDisplayManager) : DisplayManager(InDisplayManager)
{
	// This event comes last when a level viewport closes: whoever saves its record has done so by then.
	GEditor->OnViewportClientListChanged().AddRaw(this, &FTonalithRecordSweep::Sweep);
	FEditorDelegates::ShutdownPIE.AddRaw(this, &FTonalithRecordSweep::OnShutdownPIE);
}

FTonalithRecordSweep::~FTonalithRecordSweep()
{
	FEditorDelegates::ShutdownPIE.RemoveAll(this);
	if (GEditor)
	{
		GEditor->OnViewportClientListChanged().RemoveAll(this);
	}
}

void FTonalithRecordSweep::OnShutdownPIE(const bool)
{
	Sweep();
}

void FTonalithRecordSweep::Sweep()
{
	TArray<const FViewportClient*> Clients;
	for (const FEditorViewportClient* Client : GEditor->GetAllViewportClients())
	{
		Clients.Add(Client);
	}
	for (const FWorldContext& Context : GEditor->GetWorldContexts())
	{
		Clients.Add(Context.GameViewport);
	}
	DisplayManager.KeepOnly(Clients);
}

#endif
