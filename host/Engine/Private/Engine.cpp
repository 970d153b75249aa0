// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Engine/Engine.h"

UEngine* GEngine = nullptr;

FSimpleMulticastDelegate UGameViewportClient::CreatedDelegate{TEXT("UGameViewportClient::CreatedDelegate")};
