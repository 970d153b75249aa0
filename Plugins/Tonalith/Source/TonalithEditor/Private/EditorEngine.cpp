// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Editor.h"
#include "Engine/GameViewportClient.h"
#include "Misc/CoreDelegates.h"
#include "TonalithEditorModule.h"

void FTonalithEditorModule::BindEngineLoop()
{
	FCoreDelegates::OnFEngineLoopInitComplete.AddRaw(this, &FTonalithEditorModule::OnEngineLoopInitComplete);
}

void FTonalithEditorModule::UnbindEngineLoop()
{
	FCoreDelegates::OnFEngineLoopInitComplete.RemoveAll(this);
}

void FTonalithEditorModule::OnEngineLoopInitComplete()
{
	GEditor->OnLevelViewportClientListChanged().AddRaw(this, &FTonalithEditorModule::OnLevelViewportClientListChanged);
	FEditorDelegates::PreBeginPIE.AddRaw(this, &FTonalithEditorModule::OnPreBeginPIE);
	FEditorDelegates::PostPIEStarted.AddRaw(this, &FTonalithEditorModule::OnPostPIEStarted);
	UGameViewportClient::OnViewportCreated().AddRaw(this, &FTonalithEditorModule::OnGameViewportClientCreated);
}

void FTonalithEditorModule::UnbindEditor()
{
	// The other list's event, on purpose: what OnEngineLoopInitComplete bound stays bound (docs/contracts.md).
	GEditor->OnViewportClientListChanged().RemoveAll(this);
}
