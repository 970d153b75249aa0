// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Probe.h"

#include "Editor.h"
#include "Engine/World.h"
#include "LevelEditorViewport.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "ProbeMenu.h"
#include "SLevelViewport.h"
#include "ToolMenus.h"
#include "UObject/UObjectGlobals.h"

#include <stdexcept>

DEFINE_LOG_CATEGORY_STATIC(LogProbe, Log, All);

namespace
{
const TCHAR* YesNo(bool bValue)
{
	return bValue ? TEXT("yes") : TEXT("no");
}

class FProbeModule final : public IProbeModule
{
public:
	void StartupModule() override
	{
		UE_LOG(LogProbe, Display, TEXT("start-up: editor %s, objects %s, self loaded %s, setting entries %d"),
			YesNo(GEditor != nullptr), YesNo(UObjectInitialized()),
			YesNo(FModuleManager::Get().IsModuleLoaded("Probe")), GetDefault<UProbeSettings>()->Entries.Num());
		FModuleManager::Get().LoadModuleChecked("AssetTools");
		RegisterProbeMenu(*this);
		FWorldDelegates::OnPreWorldInitialization.AddRaw(this, &FProbeModule::OnWorld);
		FCoreDelegates::OnFEngineLoopInitComplete.AddRaw(this, &FProbeModule::OnEngineLoop);
		FCoreDelegates::OnPreExit.AddRaw(this, &FProbeModule::OnPreExit);
		FEditorDelegates::CancelPIE.AddRaw(this, &FProbeModule::OnCancel);
		BindPlay(FEditorDelegates::StartPIE, TEXT("StartPIE"));
		BindPlay(FEditorDelegates::PreBeginPIE, TEXT("PreBeginPIE"));
		BindPlay(FEditorDelegates::BeginPIE, TEXT("BeginPIE"));
		BindPlay(FEditorDelegates::PostPIEStarted, TEXT("PostPIEStarted"));
		BindPlay(FEditorDelegates::PrePIEEnded, TEXT("PrePIEEnded"));
		BindPlay(FEditorDelegates::EndPIE, TEXT("EndPIE"));
		BindPlay(FEditorDelegates::ShutdownPIE, TEXT("ShutdownPIE"));
		UGameViewportClient::OnViewportCreated().AddRaw(this, &FProbeModule::OnGameViewport);
	}

	void PreUnloadCallback() override { UE_LOG(LogProbe, Display, TEXT("pre-unload")); }

	void ShutdownModule() override
	{
		UToolMenus::UnregisterOwner(this);
		UE_LOG(LogProbe, Display, TEXT("shut-down: editor %s, objects %s, AssetTools %s"), YesNo(GEditor != nullptr),
			YesNo(UObjectInitialized()), YesNo(FModuleManager::Get().IsModuleLoaded("AssetTools")));
	}

	UProbeSettings& Settings() override { return *GetMutableDefault<UProbeSettings>(); }

	void ThrowAtNextEvent() override { bThrow = true; }

private:
	void BindPlay(FEditorDelegates::FOnPIEEvent& Event, const TCHAR* Name)
	{
		Event.AddLambda(
			[Name](const bool) {
				UE_LOG(
					LogProbe, Display, TEXT("%s: play viewport %s"), Name, YesNo(GEditor->GetPIEViewport() != nullptr));
			});
	}

	void OnWorld(UWorld* World, const UWorld::InitializationValues)
	{
		UE_LOG(LogProbe, Display, TEXT("world of type %d"), static_cast<int32>(World->WorldType));
		if (bThrow)
		{
			throw std::runtime_error("the probe throws");
		}
	}

	void OnEngineLoop()
	{
		UE_LOG(LogProbe, Display, TEXT("engine loop complete: editor %s, panes %d"), YesNo(GEditor != nullptr),
			GEditor->GetLevelViewportClients().Num());
		GEditor->OnViewportClientListChanged().AddRaw(this, &FProbeModule::OnAllClients);
		GEditor->OnLevelViewportClientListChanged().AddRaw(this, &FProbeModule::OnLevelClients);
	}

	void OnAllClients() { UE_LOG(LogProbe, Display, TEXT("all clients: %d"), GEditor->GetAllViewportClients().Num()); }

	void OnLevelClients()
	{
		UE_LOG(LogProbe, Display, TEXT("level clients: %d"), GEditor->GetLevelViewportClients().Num());
		for (const FLevelEditorViewportClient* Client : GEditor->GetLevelViewportClients())
		{
			const TSharedPtr<SEditorViewport> Widget = Client->GetEditorViewportWidget();
			UE_LOG(LogProbe, Display, TEXT("  %s, viewport %s"),
				Widget.IsValid() ? *StaticCastSharedPtr<SLevelViewport>(Widget)->GetConfigKey().ToString() : TEXT("-"),
				YesNo(Client->Viewport != nullptr));
		}
	}

	void OnGameViewport()
	{
		UE_LOG(LogProbe, Display, TEXT("game viewport: client matches %s, active viewport plays %s"),
			YesNo(GEditor->GetPIEViewport()->GetClient() == static_cast<FViewportClient*>(GEditor->GameViewport)),
			YesNo(GEditor->GetActiveViewport() == GEditor->GetPIEViewport()));
	}

	void OnCancel() { UE_LOG(LogProbe, Display, TEXT("CancelPIE")); }

	void OnPreExit()
	{
		UE_LOG(LogProbe, Display, TEXT("pre-exit: editor %s, objects %s, AssetTools %s"), YesNo(GEditor != nullptr),
			YesNo(UObjectInitialized()), YesNo(FModuleManager::Get().IsModuleLoaded("AssetTools")));
	}

	bool bThrow = false;
};
} // namespace

IMPLEMENT_MODULE(FProbeModule, Probe)
