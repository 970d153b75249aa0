// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "CoreGlobals.h"

#include "Misc/App.h"

#include <thread>

DEFINE_LOG_CATEGORY(LogTemp);

bool FApp::bCanEverRender = true;
FString GEditorPerProjectIni;

static const std::thread::id GameThread = std::this_thread::get_id();

bool IsInGameThread()
{
	return std::this_thread::get_id() == GameThread;
}
