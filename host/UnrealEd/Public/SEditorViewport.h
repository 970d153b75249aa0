// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The widget around a viewport of the editor.
#pragma once

#include "Widgets/SCompoundWidget.h"

class FEditorViewportClient;
class FSceneViewport;

class UNREALED_API SEditorViewport : public SCompoundWidget
{
public:
	~SEditorViewport() override;

protected:
	TSharedPtr<FEditorViewportClient> Client;
	TSharedPtr<FSceneViewport> SceneViewport;
};
