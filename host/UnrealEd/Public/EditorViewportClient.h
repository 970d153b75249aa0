// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Editor.h"
#include "SEditorViewport.h"

/** A client of any editor viewport. Enters itself into the editor's list and leaves it when it dies. */
class FEditorViewportClient : public FCommonViewportClient
{
public:
	explicit FEditorViewportClient(const TWeakPtr<SEditorViewport>& InEditorViewportWidget)
		: EditorViewportWidget(InEditorViewportWidget)
	{
		GEditor->AddViewportClients(this);
	}

	/** Fatal while a viewport is set: it would draw through a dead client. */
	~FEditorViewportClient() override
	{
		checkf(Viewport == nullptr, TEXT("The viewport of a client must be gone before the client."));
		GEditor->RemoveViewportClients(this);
	}

	void Draw(FViewport* InViewport, FCanvas* Canvas) override { HostScene::Draw(*InViewport, *Canvas); }

	TSharedPtr<SEditorViewport> GetEditorViewportWidget() const { return EditorViewportWidget.Pin(); }

	/** Not owned; null until the widget made it. */
	FViewport* Viewport = nullptr;

protected:
	TWeakPtr<SEditorViewport> EditorViewportWidget;
};
