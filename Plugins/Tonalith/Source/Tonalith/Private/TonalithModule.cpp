// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Engine/Engine.h"
#include "LookViewExtension.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "TonalithDisplayManager.h"
#include "TonalithModuleInterface.h"

class FTonalithModule final : public ITonalithModule
{
public:
	void StartupModule() override
	{
		FCoreDelegates::OnPostEngineInit.AddRaw(this, &FTonalithModule::RegisterViewExtension);
		RegisterViewExtension();
	}

	void ShutdownModule() override
	{
		FCoreDelegates::OnPostEngineInit.RemoveAll(this);
		ViewExtension.Reset();
	}

	FTonalithDisplayManager& GetDisplayManager() override { return DisplayManager; }

private:
	/** Nothing before there is an engine; commandlets may never have one. */
	void RegisterViewExtension()
	{
		if (GEngine && !ViewExtension.IsValid())
		{
			ViewExtension = FSceneViewExtensions::NewExtension<FLookViewExtension>(DisplayManager);
		}
	}

	FTonalithDisplayManager DisplayManager;

	/** The engine holds it weakly. */
	TSharedPtr<FLookViewExtension> ViewExtension;
};

IMPLEMENT_MODULE(FTonalithModule, Tonalith)
