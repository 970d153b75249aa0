// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Worlds: their type, their start of life, and the event of a changed feature level.
#pragma once

#include "Containers/EnumAsByte.h"
#include "Engine/EngineTypes.h"
#include "RHIFeatureLevel.h"
#include "UObject/Object.h"

DECLARE_MULTICAST_DELEGATE_OneParam(FOnFeatureLevelChanged, ERHIFeatureLevel::Type);

struct FWorldInitializationValues
{
};

class ENGINE_API UWorld : public UObject
{
public:
	using InitializationValues = FWorldInitializationValues;

	/** Makes a world and initialises it. */
	static UWorld* CreateWorld(const EWorldType::Type InWorldType);

	/** Tells the handlers the new level. */
	void ChangeFeatureLevel(ERHIFeatureLevel::Type InFeatureLevel) { OnFeatureLevelChanged.Broadcast(InFeatureLevel); }

	FDelegateHandle AddOnFeatureLevelChangedHandler(const FOnFeatureLevelChanged::FDelegate& InHandler)
	{
		return OnFeatureLevelChanged.Add(InHandler);
	}
	void RemoveOnFeatureLevelChangedHandler(FDelegateHandle InHandle) { OnFeatureLevelChanged.Remove(InHandle); }

	TEnumAsByte<EWorldType::Type> WorldType = EWorldType::None;

private:
	FOnFeatureLevelChanged OnFeatureLevelChanged{TEXT("UWorld::OnFeatureLevelChanged")};
};

class ENGINE_API FWorldDelegates
{
public:
	DECLARE_MULTICAST_DELEGATE_TwoParams(FWorldInitializationEvent, UWorld*, const UWorld::InitializationValues);

	/** Sent while a world is initialised; its type is set. */
	static FWorldInitializationEvent OnPreWorldInitialization;
};
