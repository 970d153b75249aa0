// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "SEditorViewport.h"
#include "UnrealClient.h"

/** A client of any editor viewport. Enters itself into the editor's list and leaves it when it dies. */
class FEditorViewportClient : public FCommonViewportClient
{
public:
	UNREALED_API explicit FEditorViewportClient(const TWeakPtr<SEditorViewport>& InEditorViewportWidget);

	/** Fatal while a viewport is set: it would draw through a dead client. */
	UNREALED_API ~FEditorViewportClient() override;

	UNREALED_API void Draw(FViewport* InViewport, FCanvas* Canvas) override;

	TSharedPtr<SEditorViewport> GetEditorViewportWidget() const { return EditorViewportWidget.Pin(); }

	/** Not owned; null until the widget made it. */
	FViewport* Viewport = nullptr;

protected:
	TWeakPtr<SEditorViewport> EditorViewportWidget;
};
