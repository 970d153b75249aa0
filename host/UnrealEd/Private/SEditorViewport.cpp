// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SEditorViewport.h"

#include "EditorViewportClient.h"
#include "Slate/SceneViewport.h"

SEditorViewport::~SEditorViewport()
{
	if (Client.IsValid())
	{
		Client->Viewport = nullptr;
		Client.Reset();
	}
}
