// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithEditorModule.h"

#include "EditorStringTable.h"
#include "Modules/ModuleManager.h"

DEFINE_LOG_CATEGORY(LogTonalithEditor);

IMPLEMENT_MODULE(FTonalithEditorModule, TonalithEditor)

void FTonalithEditorModule::StartupModule()
{
	// Before anything that shows a text.
	LoadEditorStrings();
	BindWorldInitialization();
	RegisterAssetTypes();
	BindEngineLoop();
	InitializeStyle();
	RegisterMenus();
}

void FTonalithEditorModule::ShutdownModule()
{
	// At a normal exit the editor and its menus are gone by now.
	if (UObjectInitialized())
	{
		UnbindEditor();
		UnregisterMenus();
	}
	ReleaseStyle();
	UnregisterAssetTypes();
	ForgetEditorWorld();
	UnbindWorldInitialization();
	UnbindEngineLoop();
}
