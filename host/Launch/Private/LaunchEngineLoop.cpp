// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LaunchEngineLoop.h"

#include "Editor.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Assets.h"
#include "Host/Culture.h"
#include "Host/Log.h"
#include "Host/Plugins.h"
#include "Host/Project.h"
#include "Host/Trace.h"
#include "LevelEditor.h"
#include "Misc/CoreDelegates.h"
#include "Misc/Paths.h"
#include "ToolMenus.h"

#include <exception>

namespace
{
/** Says what came out of a module before the process ends; nothing is unwound. */
[[noreturn]] void OnUncaughtException() noexcept
{
	try
	{
		if (const std::exception_ptr Current = std::current_exception())
		{
			std::rethrow_exception(Current);
		}
	}
	catch (const std::exception& Exception)
	{
		const FString Reason = UTF8_TO_TCHAR(Exception.what());
		FDebug::Fatal(__FILE__, __LINE__, *(TEXT("Unhandled exception: ") + Reason));
	}
	catch (...)
	{
		FDebug::Fatal(__FILE__, __LINE__, TEXT("Unhandled exception of an unknown type"));
	}
	FDebug::Fatal(__FILE__, __LINE__, TEXT("The program was terminated"));
}
} // namespace

bool FEngineLoop::Init(const FEngineLoopOptions& Options, FString& OutError) noexcept
{
	std::set_terminate(&OnUncaughtException);
	bIsCommandlet = Options.bIsCommandlet;
	HostProject::SetFolder(Options.ProjectFolder);
	HostLog::OpenFile(FPaths::Combine(FPaths::ProjectLogDir(), TEXT("HeadlessEditor.log")));
	HostLog::StartTimeStamps();
	HostCulture::Set(Options.Culture);
	HostAssets::Scan();
	for (const FString& Folder : Options.PluginFolders)
	{
		if (!HostPlugins::Discover(Folder, OutError))
		{
			return false;
		}
	}
	if (!LoadPhases(TEXT("EarliestPossible"), TEXT("PreEarlyLoadingScreen"), OutError))
	{
		return false;
	}
	HostObjects::Init();
	if (!bIsCommandlet)
	{
		FSlateApplication::Create();
	}
	if (!LoadPhases(TEXT("PreLoadingScreen"), TEXT("PostDefault"), OutError))
	{
		return false;
	}
	if (!bIsCommandlet)
	{
		MakeEditor();
	}
	if (!LoadPhases(TEXT("PostEngineInit"), TEXT("PostEngineInit"), OutError))
	{
		return false;
	}
	if (!bIsCommandlet)
	{
		FCoreDelegates::OnFEngineLoopInitComplete.Broadcast();
	}
	return true;
}

bool FEngineLoop::LoadPhases(const TCHAR* First, const TCHAR* Last, FString& OutError)
{
	const TArray<FString>& Phases = HostPlugins::LoadingPhases();
	for (int32 Index = Phases.Find(First); Index <= Phases.Find(Last); ++Index)
	{
		if (!HostPlugins::LoadModules(Phases[Index], bIsCommandlet, OutError))
		{
			return false;
		}
	}
	return true;
}

void FEngineLoop::MakeEditor()
{
	HostTrace::Line(TEXT("make the editor engine"));
	GEditor = new UEditorEngine();
	GEngine = GEditor;
	for (const TCHAR* Module : {TEXT("AssetTools"), TEXT("ToolMenus"), TEXT("LevelEditor")})
	{
		FModuleManager::Get().LoadModuleChecked(Module);
	}
	UWorld::CreateWorld(EWorldType::Editor);
}

void FEngineLoop::Tick() noexcept
{
	++GFrameCounter;
	if (GEditor)
	{
		GEditor->Tick();
		UToolMenus::Get()->Tick();
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
	HostLog::CloseFile();
}
