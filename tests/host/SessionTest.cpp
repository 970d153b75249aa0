// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Modules, exits, panes and play as a plug-in sees them; the probe writes down each event.
#include "EditorTest.h"
#include "Modules/ModuleManager.h"

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

	/** What was broadcast since the last call, without the classes of the delegates. */
	FLines TakeBroadcasts()
	{
		FLines Events;
		for (const std::string& Line : TakeTrace())
		{
			if (Line.starts_with("broadcast "))
			{
				Events.push_back(Line.substr(Line.rfind(':') + 1));
			}
		}
		return Events;
	}
};

TEST_F(Session, PluginSeesStartAndNormalExitInOrder)
{
	Driver.Start(Options);
	EXPECT_THAT(TakeProbe(),
		ElementsAre("start-up: editor no, objects yes, AssetTools no", "self loaded yes, setting entries 0",
			"world of type 2", "engine loop complete: editor yes, objects yes, AssetTools yes"));
	TakeTrace();
	Driver.Quit();
	EXPECT_THAT(TakeProbe(),
		ElementsAre("pre-exit: editor yes, objects yes, AssetTools no",
			"pre-unload: editor no, objects no, AssetTools no", "shut-down: editor no, objects no, AssetTools no"));
	// The probe loaded the menus while it started itself.
	const FLines Trace = TakeTrace();
	EXPECT_THAT(
		FLines(Trace.end() - 2, Trace.end()), ElementsAre("shut down module Probe", "shut down module ToolMenus"));
}

TEST_F(Session, PaneEventsComeInTheEnginesOrder)
{
	Driver.Start(Options);
	Driver.OpenPane(TEXT("A"));
	TakeProbe();
	Driver.OpenPane(TEXT("B"));
	EXPECT_THAT(TakeProbe(), ElementsAre("all clients: 2", "level clients: A with viewport B"));
	Driver.ClosePane(TEXT("A"));
	EXPECT_THAT(TakeProbe(), ElementsAre("level clients: B with viewport", "all clients: 1"));
	EXPECT_THROW(Driver.ClosePane(TEXT("A")), FDriverError);
}

TEST_F(Session, PlayEventsComeInTheEnginesOrder)
{
	Driver.Start(Options);
	Driver.OpenPane(TEXT("A"));
	TakeTrace();
	Driver.PlayInPane();
	EXPECT_THAT(TakeBroadcasts(), ElementsAre("StartPIE", "PreBeginPIE", "BeginPIE", "OnPreWorldInitialization",
									  "CreatedDelegate", "PostPIEStarted"));
	Driver.EndPlay();
	EXPECT_THAT(TakeBroadcasts(), ElementsAre("PrePIEEnded", "EndPIE", "ShutdownPIE"));
	Driver.PlayInWindow(EPlayCancellation::MapSaveRefused);
	EXPECT_THAT(TakeBroadcasts(), ElementsAre("CancelPIE"));
	Driver.PlayInWindow(EPlayCancellation::NotAuthorized);
	EXPECT_THAT(TakeBroadcasts(), ElementsAre("StartPIE", "PreBeginPIE", "CancelPIE"));
	Driver.PlayInWindow(EPlayCancellation::ErrorPrompt);
	EXPECT_THAT(TakeBroadcasts(), ElementsAre("StartPIE", "PreBeginPIE", "BeginPIE", "EndPIE", "CancelPIE"));
}

TEST_F(Session, FatalMistakesEndTheProcess)
{
	Driver.Start(Options);
	EXPECT_EXIT(FModuleManager::GetModuleChecked<IModuleInterface>("Nowhere"), testing::ExitedWithCode(3),
		"Tried to get module interface for unloaded module: 'Nowhere'");
	EXPECT_EXIT(
		{
			Driver.Quit();
			FModuleManager::Get().LoadModuleChecked("Probe");
		},
		testing::ExitedWithCode(3), "Attempted to load module 'Probe' that was already unloaded at shutdown.");
	EXPECT_EXIT(Driver.MakeWorld(EWorldType::GameRPC), testing::ExitedWithCode(3), "the probe throws");
}
