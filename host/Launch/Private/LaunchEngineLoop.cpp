// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LaunchEngineLoop.h"

#include "Editor.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Assets.h"
#include "Host/Plugins.h"
#include "LevelEditor.h"
#include "Misc/App.h"
#include "Misc/CoreDelegates.h"
#include "ToolMenus.h"

void FEngineLoop::Init(const FEngineLoopOptions& Options)
{
	bIsCommandlet = Options.bIsCommandlet;
	FApp::bCanEverRender = !bIsCommandlet;
	HostProject::SetFolder(Options.ProjectFolder);
	FInternationalization::Get().SetCurrentCulture(Options.Culture);
	HostScene::Show(Options.Scene);
	HostAssets::Scan();
	HostPlugins::Discover(Options.PluginFolders);
	const auto LoadPhases = [this](const TArray<FString>& Phases) { HostPlugins::LoadModules(Phases, bIsCommandlet); };
	LoadPhases(
		{TEXT("EarliestPossible"), TEXT("PostConfigInit"), TEXT("PostSplashScreen"), TEXT("PreEarlyLoadingScreen")});
	HostObjects::Init();
	if (!bIsCommandlet)
	{
		FSlateApplication::Create();
	}
	LoadPhases({TEXT("PreLoadingScreen"), TEXT("PreDefault"), TEXT("Default"), TEXT("PostDefault")});
	if (!bIsCommandlet)
	{
		MakeEditor();
	}
	FCoreDelegates::OnPostEngineInit.Broadcast();
	LoadPhases({TEXT("PostEngineInit")});
	if (!bIsCommandlet)
	{
		FCoreDelegates::OnFEngineLoopInitComplete.Broadcast();
	}
}

void FEngineLoop::MakeEditor() noexcept
{
	HostTrace::Line(TEXT("make the editor engine"));
	GEditor = new UEditorEngine();
	GEngine = GEditor;
	for (const TCHAR* Module : {TEXT("AssetTools"), TEXT("PropertyEditor"), TEXT("ToolMenus"), TEXT("LevelEditor")})
	{
		FModuleManager::Get().LoadModuleChecked(Module);
	}
	UWorld::CreateWorld(EWorldType::Editor);
}

void FEngineLoop::Tick() noexcept
{
	if (GEditor)
	{
		GEditor->Tick();
		UToolMenus::Get()->Tick();
		FSlateApplication::Get().Tick();
	}
}

void FEngineLoop::Exit() noexcept
{
	HostTrace::Line(TEXT("editor exit"));
	if (GEditor)
	{
		GEditor->EndPlayMap();
		FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor").CloseAllPanes();
		FSlateApplication::Shutdown();
	}
	FModuleManager::Get().UnloadModule("AssetTools", true);
	FCoreDelegates::OnPreExit.Broadcast();
	FCoreDelegates::OnExit.Broadcast();
	HostTrace::Line(TEXT("purge objects"));
	HostObjects::Shutdown();
	GEditor = nullptr;
	GEngine = nullptr;
	FModuleManager::Get().UnloadModulesAtShutdown();
}
