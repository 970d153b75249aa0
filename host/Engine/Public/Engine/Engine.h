// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/IndirectArray.h"
#include "Engine/GameViewportClient.h"
#include "SceneViewExtension.h"
#include "UObject/ObjectPtr.h"

/** What goes with one world that is open. */
struct FWorldContext
{
	/** Null unless a game is played in it. */
	TObjectPtr<UGameViewportClient> GameViewport;
};

class UEngine : public UObject
{
public:
	const TIndirectArray<FWorldContext>& GetWorldContexts() const { return WorldList; }

	/** Null unless a game is played. */
	UGameViewportClient* GameViewport = nullptr;

	TSharedPtr<FSceneViewExtensions> ViewExtensions = MakeShared<FSceneViewExtensions>();

protected:
	/** The editor's own world, then those that are played in. */
	TIndirectArray<FWorldContext> WorldList{FWorldContext()};
};

extern ENGINE_API UEngine* GEngine;
