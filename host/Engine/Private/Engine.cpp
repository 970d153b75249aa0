// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Engine/Engine.h"
#include "Host/SceneRenderer.h"

UEngine* GEngine = nullptr;

FSimpleMulticastDelegate UGameViewportClient::CreatedDelegate{TEXT("UGameViewportClient::CreatedDelegate")};

void UGameViewportClient::Draw(FViewport* InViewport, FCanvas* SceneCanvas)
{
	HostScene::Draw(*InViewport, *SceneCanvas);
}
