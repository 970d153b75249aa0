// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Probe.h"

#include "Editor.h"
#include "Engine/World.h"
#include "LevelEditorViewport.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
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

template <size_t Size, typename... ArgTypes>
void Say(const TCHAR (&Format)[Size], ArgTypes... Args)
{
	UE_LOG(LogProbe, Display, TEXT("%s"), *FString::Printf(Format, Args...));
}

/** What there is of the editor. */
void SayState(const TCHAR* Event)
{
	Say(TEXT("%s: editor %s, objects %s, AssetTools %s"), Event, YesNo(GEditor != nullptr), YesNo(UObjectInitialized()),
		YesNo(FModuleManager::Get().IsModuleLoaded("AssetTools")));
}

class FProbeModule final : public IProbeModule
{
public:
	void StartupModule() override
	{
		SayState(TEXT("start-up"));
		Say(TEXT("self loaded %s, setting entries %d"), YesNo(FModuleManager::Get().IsModuleLoaded("Probe")),
			GetDefault<UProbeSettings>()->Entries.Num());
		FModuleManager::Get().LoadModuleChecked("AssetTools");
		const FToolMenuOwnerScoped Owner(this);
		UToolMenu* Menu = UToolMenus::Get()->ExtendMenu(SLevelViewport::ViewMenuName);
		Menu->AddSection("Probe").AddMenuEntry("Probe", FText(), FText(), FSlateIcon(), FUIAction());
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

	void PreUnloadCallback() override { Say(TEXT("pre-unload")); }

	void ShutdownModule() override
	{
		UToolMenus::UnregisterOwner(this);
		SayState(TEXT("shut-down"));
	}

	UProbeSettings& Settings() override { return *GetMutableDefault<UProbeSettings>(); }

	void ThrowAtNextEvent() override { bThrow = true; }

private:
	void BindPlay(FEditorDelegates::FOnPIEEvent& Event, const TCHAR* Name)
	{
		const auto Report = [Name](const bool)
		{ Say(TEXT("%s: play viewport %s"), Name, YesNo(GEditor->GetPIEViewport() != nullptr)); };
		Event.Add(FEditorDelegates::FOnPIEEvent::FDelegate::CreateLambda(Report));
	}

	void OnWorld(UWorld* World, const UWorld::InitializationValues)
	{
		Say(TEXT("world of type %d"), static_cast<int32>(World->WorldType));
		if (bThrow)
		{
			throw std::runtime_error("the probe throws");
		}
	}

	void OnEngineLoop()
	{
		Say(TEXT("engine loop complete: editor %s, panes %d"), YesNo(GEditor != nullptr),
			GEditor->GetLevelViewportClients().Num());
		GEditor->OnViewportClientListChanged().AddRaw(this, &FProbeModule::OnAllClients);
		GEditor->OnLevelViewportClientListChanged().AddRaw(this, &FProbeModule::OnLevelClients);
	}

	void OnAllClients() { Say(TEXT("all clients: %d"), GEditor->GetAllViewportClients().Num()); }

	void OnLevelClients()
	{
		Say(TEXT("level clients: %d"), GEditor->GetLevelViewportClients().Num());
		for (const FLevelEditorViewportClient* Client : GEditor->GetLevelViewportClients())
		{
			const TSharedPtr<SEditorViewport> Widget = Client->GetEditorViewportWidget();
			Say(TEXT("  %s, viewport %s"),
				Widget.IsValid() ? *StaticCastSharedPtr<SLevelViewport>(Widget)->GetConfigKey().ToString() : TEXT("-"),
				YesNo(Client->Viewport != nullptr));
		}
	}

	void OnGameViewport()
	{
		int32 Games = 0;
		int32 Worlds = 0;
		for (const FWorldContext& Context : GEditor->GetWorldContexts())
		{
			Games += Context.GameViewport == GEditor->GameViewport;
			++Worlds;
		}
		Say(TEXT("game viewport: client matches %s, active viewport plays %s, in %d of %d worlds"),
			YesNo(GEditor->GetPIEViewport()->GetClient() == static_cast<FViewportClient*>(GEditor->GameViewport)),
			YesNo(GEditor->GetActiveViewport() == GEditor->GetPIEViewport()), Games, Worlds);
	}

	void OnCancel() { Say(TEXT("CancelPIE")); }

	void OnPreExit() { SayState(TEXT("pre-exit")); }

	bool bThrow = false;
};
} // namespace

IMPLEMENT_MODULE(FProbeModule, Probe)
