// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithEditorModule.h"

void FTonalithEditorModule::BindWorldInitialization()
{
	FWorldDelegates::OnPreWorldInitialization.AddRaw(this, &FTonalithEditorModule::OnPreWorldInitialization);
}

void FTonalithEditorModule::UnbindWorldInitialization()
{
	FWorldDelegates::OnPreWorldInitialization.RemoveAll(this);
}

void FTonalithEditorModule::OnPreWorldInitialization(UWorld* World, const UWorld::InitializationValues)
{
	if (!World || World->WorldType != EWorldType::Editor)
	{
		return;
	}
	ForgetEditorWorld();
	EditorWorld = World;
	FeatureLevelChangedHandle = World->AddOnFeatureLevelChangedHandler(
		FOnFeatureLevelChanged::FDelegate::CreateRaw(this, &FTonalithEditorModule::OnFeatureLevelChanged));
}

void FTonalithEditorModule::ForgetEditorWorld()
{
	if (!FeatureLevelChangedHandle.IsValid())
	{
		return;
	}
	if (UWorld* World = static_cast<UWorld*>(EditorWorld.Get()))
	{
		World->RemoveOnFeatureLevelChangedHandler(FeatureLevelChangedHandle);
	}
	FeatureLevelChangedHandle.Reset();
}

void FTonalithEditorModule::OnFeatureLevelChanged(ERHIFeatureLevel::Type)
{
	// Deliberately empty.
}
