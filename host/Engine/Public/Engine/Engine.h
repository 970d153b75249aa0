// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Engine/GameViewportClient.h"
#include "SceneViewExtension.h"

class UEngine : public UObject
{
public:
	/** Null unless a game is played. */
	UGameViewportClient* GameViewport = nullptr;

	TSharedPtr<FSceneViewExtensions> ViewExtensions = MakeShared<FSceneViewExtensions>();
};

extern ENGINE_API UEngine* GEngine;
