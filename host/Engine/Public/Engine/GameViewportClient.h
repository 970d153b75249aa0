// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The client of a viewport in which a game is played.
#pragma once

#include "Engine/ScriptViewportClient.h"
#include "Host/SceneRenderer.h"

class ENGINE_API UGameViewportClient : public UScriptViewportClient
{
public:
	/** Sent when a game viewport and its client exist. */
	static FSimpleMulticastDelegate& OnViewportCreated() { return CreatedDelegate; }

	void Draw(FViewport* InViewport, FCanvas* SceneCanvas) override { HostScene::Draw(*InViewport, *SceneCanvas); }

	void SetViewport(FViewport* InViewport) { Viewport = InViewport; }

	/** Not owned. */
	FViewport* Viewport = nullptr;

private:
	static FSimpleMulticastDelegate CreatedDelegate;
};
