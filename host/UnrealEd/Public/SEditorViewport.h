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
	virtual TSharedRef<FEditorViewportClient> MakeEditorViewportClient() = 0;

	/** Makes the client first; its viewport follows, so that the client's creation events see none. */
	void ConstructViewport();

	TSharedPtr<FEditorViewportClient> Client;
	TSharedPtr<FSceneViewport> SceneViewport;
};
