// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Modules, exits, panes and play as a plug-in sees them; the probe writes down each event.
#include "Editor.h"
#include "EditorTest.h"
#include "Framework/Application/SlateApplication.h"
#include "Modules/ModuleManager.h"
#include "Probe.h"
#include "SLevelViewport.h"

using testing::ElementsAre;

class Session : public FEditorTest
{
protected:
	FLines TakeProbe()
	{
		FLines Events = TakeLog("LogProbe");
		for (std::string& Line : Events)
		{
			Line = Line.substr(std::string("Display: ").size());
		}
		return Events;
	}
};

TEST_F(Session, PluginSeesStartAndNormalExitInOrder)
{
	Driver.Start(Options);
	EXPECT_THAT(TakeProbe(),
		ElementsAre("start-up: editor no, objects yes, AssetTools no", "self loaded yes, setting entries 0",
			"world of type 2", "engine loop complete: editor yes, panes 0"));
	TakeTrace();
	Driver.Quit();
	EXPECT_THAT(TakeProbe(), ElementsAre("pre-exit: editor yes, objects yes, AssetTools no", "pre-unload",
								 "shut-down: editor no, objects no, AssetTools no"));
	// The probe loaded the menus while it started itself.
	const FLines Trace = TakeTrace();
	EXPECT_THAT(
		FLines(Trace.end() - 2, Trace.end()), ElementsAre("shut down module Probe", "shut down module ToolMenus"));
}

TEST_F(Session, UnloadedModuleCanBeLoadedAgain)
{
	Driver.Start(Options);
	TakeProbe();
	Driver.UnloadModule(TEXT("Probe"));
	EXPECT_FALSE(FModuleManager::Get().UnloadModule("Probe"));
	EXPECT_THAT(TakeProbe(), ElementsAre("shut-down: editor yes, objects yes, AssetTools yes"));
	EXPECT_EQ(FModuleManager::Get().GetModule("Probe"), nullptr);
	FModuleManager::Get().LoadModuleChecked("Probe");
	EXPECT_THAT(TakeProbe(),
		ElementsAre("start-up: editor yes, objects yes, AssetTools yes", "self loaded yes, setting entries 0"));
}

TEST_F(Session, PaneEventsComeInTheEnginesOrder)
{
	Driver.Start(Options);
	Driver.OpenPane(TEXT("FourPanes2x2.Viewport 1.Viewport0"));
	TakeProbe();
	Driver.OpenPane(TEXT("FourPanes2x2.Viewport 1.Viewport1"));
	EXPECT_THAT(TakeProbe(),
		ElementsAre("all clients: 2", "level clients: 2", "  FourPanes2x2.Viewport 1.Viewport0, viewport yes",
			"  FourPanes2x2.Viewport 1.Viewport1, viewport no"));
	EXPECT_NE(Driver.Pane(TEXT("FourPanes2x2.Viewport 1.Viewport1")).GetLevelViewportClient().Viewport, nullptr);
	Driver.ClosePane(TEXT("FourPanes2x2.Viewport 1.Viewport0"));
	EXPECT_THAT(TakeProbe(),
		ElementsAre("level clients: 1", "  FourPanes2x2.Viewport 1.Viewport1, viewport yes", "all clients: 1"));
	EXPECT_THROW(Driver.ClosePane(TEXT("FourPanes2x2.Viewport 1.Viewport0")), FDriverError);
}

TEST_F(Session, PlayEventsComeInTheEnginesOrder)
{
	Driver.Start(Options);
	Driver.OpenPane(TEXT("A"));
	TakeProbe();
	Driver.PlayInPane();
	EXPECT_THAT(TakeProbe(),
		ElementsAre("StartPIE: play viewport no", "PreBeginPIE: play viewport no", "BeginPIE: play viewport no",
			"world of type 3", "game viewport: client matches yes, active viewport plays yes, in 1 of 2 worlds",
			"PostPIEStarted: play viewport yes"));
	Driver.EndPlay();
	EXPECT_THAT(TakeProbe(),
		ElementsAre("PrePIEEnded: play viewport yes", "EndPIE: play viewport yes", "ShutdownPIE: play viewport no"));
	Driver.PlayInWindow();
	EXPECT_THAT(TakeProbe(),
		testing::Contains("game viewport: client matches yes, active viewport plays no, in 1 of 2 worlds"));
	Driver.EndPlay();
	TakeProbe();

	Driver.PlayInWindow(EPlayCancellation::MapSaveRefused);
	EXPECT_THAT(TakeProbe(), ElementsAre("CancelPIE"));
	Driver.PlayInWindow(EPlayCancellation::NotAuthorized);
	EXPECT_THAT(TakeProbe(), ElementsAre("StartPIE: play viewport no", "PreBeginPIE: play viewport no", "CancelPIE"));
	Driver.PlayInWindow(EPlayCancellation::ErrorPrompt);
	EXPECT_THAT(TakeProbe(), ElementsAre("StartPIE: play viewport no", "PreBeginPIE: play viewport no",
								 "BeginPIE: play viewport no", "EndPIE: play viewport no", "CancelPIE"));
}

TEST_F(Session, FatalMistakesEndTheProcess)
{
	Driver.Start(Options);
	Driver.OpenPane(TEXT("A"));
	EXPECT_EXIT(FModuleManager::GetModuleChecked<IModuleInterface>("Nowhere"), testing::ExitedWithCode(3),
		"Tried to get module interface for unloaded module: 'Nowhere'");
	EXPECT_EXIT(FModuleManager::Get().LoadModuleChecked("Nowhere"), testing::ExitedWithCode(3), "Nowhere");
	EXPECT_EXIT(
		{
			Driver.Quit();
			FSlateApplication::Get();
		},
		testing::ExitedWithCode(3), "CurrentApplication.IsValid\\(\\)");
	EXPECT_EXIT(
		{
			Driver.Quit();
			FModuleManager::Get().LoadModuleChecked("Probe");
		},
		testing::ExitedWithCode(3), "Attempted to load module 'Probe' that was already unloaded at shutdown.");
	EXPECT_EXIT(
		{
			FModuleManager::LoadModuleChecked<IProbeModule>("Probe").ThrowAtNextEvent();
			Driver.MakeWorld(EWorldType::Editor);
		},
		testing::ExitedWithCode(3), "the probe throws");
}
