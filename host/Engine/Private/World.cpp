// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Engine/World.h"

FWorldDelegates::FWorldInitializationEvent FWorldDelegates::OnPreWorldInitialization{
	TEXT("FWorldDelegates::OnPreWorldInitialization")};

UWorld* UWorld::CreateWorld(const EWorldType::Type InWorldType)
{
	UWorld* World = new UWorld();
	World->WorldType = InWorldType;
	FWorldDelegates::OnPreWorldInitialization.Broadcast(World, FWorldInitializationValues());
	return World;
}
