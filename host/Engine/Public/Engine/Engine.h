// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Engine/GameViewportClient.h"

class UEngine : public UObject
{
public:
	/** Null unless a game is played. */
	UGameViewportClient* GameViewport = nullptr;
};

extern ENGINE_API UEngine* GEngine;
