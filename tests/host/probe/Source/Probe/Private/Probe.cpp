// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A plug-in that writes down what the host does: one log line in category LogProbe an event.
#include "Editor.h"
#include "LevelEditorViewport.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "ProbeSettings.h"
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

/** What there is of the editor. */
void SayState(const TCHAR* Event)
{
	UE_LOG(LogProbe, Display, TEXT("%s: editor %s, objects %s, AssetTools %s"), Event, YesNo(GEditor != nullptr),
		YesNo(UObjectInitialized()), YesNo(FModuleManager::Get().IsModuleLoaded("AssetTools")));
}

class FProbeModule final : public IModuleInterface
{
public:
	void StartupModule() override
	{
		SayState(TEXT("start-up"));
		UE_LOG(LogProbe, Display, TEXT("self loaded %s, setting entries %d"),
			YesNo(FModuleManager::Get().IsModuleLoaded("Probe")), GetDefault<UProbeSettings>()->Entries.Num());
		FModuleManager::Get().LoadModuleChecked("AssetTools");
		const FToolMenuOwnerScoped Owner(this);
		UToolMenu* Menu = UToolMenus::Get()->ExtendMenu(SLevelViewport::ViewMenuName);
		Menu->AddSection("Probe").AddMenuEntry("Probe", FText(), FText(), FSlateIcon(), FUIAction());
		FWorldDelegates::OnPreWorldInitialization.AddRaw(this, &FProbeModule::OnWorld);
		FCoreDelegates::OnFEngineLoopInitComplete.AddRaw(this, &FProbeModule::OnEngineLoop);
		FCoreDelegates::OnPreExit.AddRaw(this, &FProbeModule::OnPreExit);
	}

	void PreUnloadCallback() override { SayState(TEXT("pre-unload")); }

	void ShutdownModule() override
	{
		UToolMenus::UnregisterOwner(this);
		SayState(TEXT("shut-down"));
	}

private:
	void OnWorld(UWorld* World, const UWorld::InitializationValues)
	{
		UE_LOG(LogProbe, Display, TEXT("world of type %d"), static_cast<int32>(World->WorldType));
		if (World->WorldType == EWorldType::GameRPC)
		{
			throw std::runtime_error("the probe throws");
		}
	}

	void OnEngineLoop()
	{
		SayState(TEXT("engine loop complete"));
		GEditor->OnViewportClientListChanged().AddRaw(this, &FProbeModule::OnAllClients);
		GEditor->OnLevelViewportClientListChanged().AddRaw(this, &FProbeModule::OnLevelClients);
	}

	void OnAllClients() { UE_LOG(LogProbe, Display, TEXT("all clients: %d"), GEditor->GetAllViewportClients().Num()); }

	void OnLevelClients()
	{
		FString Panes;
		for (const FLevelEditorViewportClient* Client : GEditor->GetLevelViewportClients())
		{
			const TSharedPtr<SEditorViewport> Widget = Client->GetEditorViewportWidget();
			Panes += TEXT(" ") + StaticCastSharedPtr<SLevelViewport>(Widget)->GetConfigKey().ToString() +
					 (Client->Viewport ? TEXT(" with viewport") : TEXT(""));
		}
		UE_LOG(LogProbe, Display, TEXT("level clients:%s"), *Panes);
	}

	void OnPreExit() { SayState(TEXT("pre-exit")); }
};
} // namespace

IMPLEMENT_MODULE(FProbeModule, Probe)
