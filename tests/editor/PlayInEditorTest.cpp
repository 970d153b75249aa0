// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a play session takes along from the pane that it was launched from.
#include "DisplayRecords.h"
#include "Editor.h"
#include "EditorTest.h"
#include "SLevelViewport.h"
#include "UObject/UObjectGlobals.h"

namespace
{
const FString Left = TEXT("TwoPanesHoriz.Viewport 1.Viewport0");
const FString Right = TEXT("TwoPanesHoriz.Viewport 1.Viewport1");

FTonalithDisplayConfiguration& PlayRecord()
{
	return DisplayRecords().FindOrAddDisplayConfiguration(GEditor->GetPIEViewport()->GetClient());
}
} // namespace

class PlayInEditor : public FEditorTest
{
protected:
	PlayInEditor()
	{
		Driver.Start(Options);
		Driver.OpenPane(Left);
		Driver.OpenPane(Right);
		Look = NewObject<UTonalithObject>();
		OtherLook = NewObject<UTonalithObject>();
	}

	FTonalithDisplayConfiguration& Record(const FString& Key)
	{
		return DisplayRecords().FindOrAddDisplayConfiguration(&Driver.Pane(Key).GetLevelViewportClient());
	}

	UTonalithObject* Look;
	UTonalithObject* OtherLook;
};

TEST_F(PlayInEditor, TakesTheWholeRecordOfTheActivePane)
{
	Record(Left) = Configured(true, 0.25f, Look);
	Record(Right) = Configured(true, 0.75f, OtherLook);
	Driver.ActivatePane(Left);
	Driver.PlayInPane();
	EXPECT_TRUE(PlayRecord().bDisplay);
	EXPECT_EQ(PlayRecord().Weight, 0.25f);
	EXPECT_EQ(PlayRecord().Look.Get(), Look);
	Driver.EndPlay();

	// A look that is switched off goes along switched off.
	Record(Right).bDisplay = false;
	Driver.ActivatePane(Right);
	Driver.PlayInWindow();
	EXPECT_FALSE(PlayRecord().bDisplay);
	EXPECT_EQ(PlayRecord().Look.Get(), OtherLook);
	Driver.EndPlay();
}

TEST_F(PlayInEditor, WithoutALookThePlayRecordStaysAsItIs)
{
	Record(Right) = Configured(true, 0.25f, nullptr);
	Driver.PlayInPane();
	const FTonalithDisplayConfiguration Default;
	EXPECT_EQ(PlayRecord().bDisplay, Default.bDisplay);
	EXPECT_EQ(PlayRecord().Weight, Default.Weight);
	EXPECT_EQ(PlayRecord().Look.Get(), nullptr);
}

TEST_F(PlayInEditor, CancelledSessionsLeaveNothingBehindThatTheNextWouldTake)
{
	Record(Left) = Configured(true, 1.0f, Look);
	Record(Right) = Configured(true, 1.0f, OtherLook);
	for (const EPlayCancellation Cancellation :
		{EPlayCancellation::MapSaveRefused, EPlayCancellation::NotAuthorized, EPlayCancellation::ErrorPrompt})
	{
		Driver.ActivatePane(Left);
		Driver.PlayCancelled(Cancellation);
		EXPECT_EQ(GEditor->GetPIEViewport(), nullptr);
		Driver.ActivatePane(Right);
		Driver.PlayInPane();
		EXPECT_EQ(PlayRecord().Look.Get(), OtherLook);
		Driver.EndPlay();
	}
}
