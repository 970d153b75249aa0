// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "EditorViewportClient.h"

class SLevelViewport;

/** A client that shows the level. */
class FLevelEditorViewportClient : public FEditorViewportClient
{
public:
	UNREALED_API explicit FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& InLevelViewport);
	UNREALED_API ~FLevelEditorViewportClient() override;
};

/** The client of the pane that the user works in; null when there is none. */
extern UNREALED_API FLevelEditorViewportClient* GCurrentLevelEditingViewportClient;
