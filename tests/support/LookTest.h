// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A test that runs one editor session with the plug-in: its registry, its library, its menu, two panes and two looks.
#pragma once

#include "EditorTest.h"
#include "Host/Assets.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "TonalithDisplayManager.h"
#include "TonalithModuleInterface.h"
#include "UObject/UObjectGlobals.h"

#include <sstream>
#include <windows.h>

inline FTonalithDisplayConfiguration Configured(bool bDisplay, float Weight, UTonalithObject* Look)
{
	FTonalithDisplayConfiguration Configuration;
	Configuration.bDisplay = bDisplay;
	Configuration.Weight = Weight;
	Configuration.Look = Look;
	return Configuration;
}

/** Such as "on 0.25 Warm" or "off 1 no look". */
inline std::string RecordText(const FTonalithDisplayConfiguration& Record)
{
	std::ostringstream Text;
	Text << (Record.bDisplay ? "on " : "off ") << Record.Weight << " "
		 << (Record.Look ? TCHAR_TO_UTF8(*Record.Look->GetName()) : "no look");
	return Text.str();
}

/** The runtime module's registry, as the modules beside it reach it. */
inline FTonalithDisplayManager& DisplayRecords()
{
	return FModuleManager::LoadModuleChecked<ITonalithModule>("Tonalith").GetDisplayManager();
}

class FLookTest : public FEditorTest
{
protected:
	static constexpr const TCHAR* PaneA = TEXT("TwoPanesHoriz.Viewport 1.Viewport0");
	static constexpr const TCHAR* PaneB = TEXT("TwoPanesHoriz.Viewport 1.Viewport1");
	static constexpr FIntPoint PaneSize{16, 8};
	static constexpr const TCHAR* WarmPath = TEXT("/Game/Looks/Warm.Warm");
	static constexpr const TCHAR* ColdPath = TEXT("/Game/Looks/Cold.Cold");

	FLookTest()
	{
		Harmless = {"Warning: OnLevelViewportClientListChanged", "Warning: SetupViewportDisplaySettings"};
		for (const TCHAR* Path : {WarmPath, ColdPath})
		{
			HostAssets::Write(Options.ProjectFolder, TEXT("/Script/Tonalith.TonalithObject"), Path);
		}
	}

	/** The first pane is the active one; the trace begins here. */
	void StartWithPanes()
	{
		Driver.Start(Options);
		for (const TCHAR* Pane : {PaneA, PaneB})
		{
			Driver.OpenPane(Pane);
			Driver.ResizePane(Pane, PaneSize);
		}
		Driver.ActivatePane(PaneA);
		TakeTrace();
	}

	/** The record of a pane, made if there is none. */
	FTonalithDisplayConfiguration& Record(const TCHAR* Pane)
	{
		return DisplayRecords().FindOrAddDisplayConfiguration(&Driver.Pane(Pane).GetLevelViewportClient());
	}

	std::string Shown(const TCHAR* Pane) { return RecordText(Record(Pane)); }

	static bool HasRecord(const FViewportClient* Client) { return DisplayRecords().GetDisplayConfiguration(Client); }

	void OpenLookMenu()
	{
		Driver.Menus().OpenViewMenu();
		Driver.Menus().OpenSubMenu(TEXT("TNLDisplaySubMenu"));
	}

	static UTonalithObject* Warm() { return Look(WarmPath); }

	static UTonalithObject* Cold() { return Look(ColdPath); }

	/** Null when there is none. */
	static UTonalithObject* Look(const TCHAR* Path)
	{
		return static_cast<UTonalithObject*>(StaticLoadObject(UTonalithObject::StaticClass(), Path));
	}

	/** The editor module's library, for replaced imports; mapped if the session has not started it yet. */
	static HMODULE EditorLibrary()
	{
		return LoadLibraryW(TEXT(EDITOR_TEST_PLUGINS) TEXT("/Tonalith/Binaries/Win64/UnrealEditor-TonalithEditor.dll"));
	}
};
