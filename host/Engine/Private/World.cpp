// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Engine/World.h"

FWorldDelegates::FWorldInitializationEvent FWorldDelegates::OnPreWorldInitialization{
	TEXT("FWorldDelegates::OnPreWorldInitialization")};

UWorld* UWorld::CreateWorld(const EWorldType::Type InWorldType)
{
	UWorld* World = new UWorld();
	World->WorldType = InWorldType;
	World->InitWorld();
	return World;
}

void UWorld::InitWorld(const InitializationValues IVS)
{
	FWorldDelegates::OnPreWorldInitialization.Broadcast(this, IVS);
}

void UWorld::ChangeFeatureLevel(ERHIFeatureLevel::Type InFeatureLevel)
{
	OnFeatureLevelChanged.Broadcast(InFeatureLevel);
}

FDelegateHandle UWorld::AddOnFeatureLevelChangedHandler(const FOnFeatureLevelChanged::FDelegate& InHandler)
{
	return OnFeatureLevelChanged.Add(InHandler);
}

void UWorld::RemoveOnFeatureLevelChangedHandler(FDelegateHandle InHandle)
{
	OnFeatureLevelChanged.Remove(InHandle);
}
