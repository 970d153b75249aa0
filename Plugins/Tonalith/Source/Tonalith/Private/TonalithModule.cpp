// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Engine/Engine.h"
#include "LookViewExtension.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "TonalithDisplayManager.h"
#include "TonalithModuleInterface.h"
#include "TonalithRecordSweep.h"

#if WITH_EDITOR
#include "Editor.h"
#endif

class FTonalithModule final : public ITonalithModule
{
public:
	virtual void StartupModule() override
	{
		FCoreDelegates::OnPostEngineInit.AddRaw(this, &FTonalithModule::AttachToEngine);
		AttachToEngine();
	}

	virtual void ShutdownModule() override
	{
		FCoreDelegates::OnPostEngineInit.RemoveAll(this);
		ViewExtension.Reset();
#if WITH_EDITOR
		RecordSweep.Reset();
#endif
	}

	virtual FTonalithDisplayManager& GetDisplayManager() override
	{
		return DisplayManager;
	}

private:
	/** Nothing before there is an engine; commandlets may never have one. */
	void AttachToEngine()
	{
		if (!GEngine || ViewExtension.IsValid())
		{
			return;
		}
		ViewExtension = FSceneViewExtensions::NewExtension<FLookViewExtension>(DisplayManager);
#if WITH_EDITOR
		if (GEditor)
		{
			RecordSweep = MakeUnique<FTonalithRecordSweep>(DisplayManager);
		}
#endif
	}

	FTonalithDisplayManager DisplayManager;

	/** The engine holds it weakly. */
	TSharedPtr<FLookViewExtension> ViewExtension;

#if WITH_EDITOR
	/** None when a game runs by the editor's program without the editor. */
	TUniquePtr<FTonalithRecordSweep> RecordSweep;
#endif
};

IMPLEMENT_MODULE(FTonalithModule, Tonalith)
