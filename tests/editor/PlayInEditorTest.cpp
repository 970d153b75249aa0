// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a play session takes along from the pane that it was launched from.
#include "Editor.h"
#include "LookTest.h"

namespace
{
FTonalithDisplayConfiguration& PlayRecord()
{
	return DisplayRecords().FindOrAddDisplayConfiguration(GEditor->GetPIEViewport()->GetClient());
}
} // namespace

class PlayInEditor : public FLookTest
{
protected:
	PlayInEditor() { StartWithPanes(); }
};

TEST_F(PlayInEditor, TakesTheWholeRecordOfTheActivePane)
{
	Record(PaneA) = Configured(true, 0.25f, Warm());
	Record(PaneB) = Configured(true, 0.75f, Cold());
	Driver.ActivatePane(PaneA);
	Driver.PlayInPane();
	EXPECT_TRUE(PlayRecord().bDisplay);
	EXPECT_EQ(PlayRecord().Weight, 0.25f);
	EXPECT_EQ(PlayRecord().Look.Get(), Warm());
	Driver.EndPlay();

	// A look that is switched off goes along switched off.
	Record(PaneB).bDisplay = false;
	Driver.ActivatePane(PaneB);
	Driver.PlayInWindow();
	EXPECT_FALSE(PlayRecord().bDisplay);
	EXPECT_EQ(PlayRecord().Look.Get(), Cold());
	Driver.EndPlay();
}

TEST_F(PlayInEditor, WithoutALookThePlayRecordStaysAsItIs)
{
	Record(PaneA) = Configured(true, 0.25f, nullptr);
	Driver.PlayInPane();
	const FTonalithDisplayConfiguration Default;
	EXPECT_EQ(PlayRecord().bDisplay, Default.bDisplay);
	EXPECT_EQ(PlayRecord().Weight, Default.Weight);
	EXPECT_EQ(PlayRecord().Look.Get(), nullptr);
}

TEST_F(PlayInEditor, CancelledSessionsLeaveNothingBehindThatTheNextWouldTake)
{
	Record(PaneA) = Configured(true, 1.0f, Warm());
	Record(PaneB) = Configured(true, 1.0f, Cold());
	for (const EPlayCancellation Cancellation :
		{EPlayCancellation::MapSaveRefused, EPlayCancellation::NotAuthorized, EPlayCancellation::ErrorPrompt})
	{
		Driver.ActivatePane(PaneA);
		Driver.PlayCancelled(Cancellation);
		EXPECT_EQ(GEditor->GetPIEViewport(), nullptr);
		Driver.ActivatePane(PaneB);
		Driver.PlayInPane();
		EXPECT_EQ(PlayRecord().Look.Get(), Cold());
		Driver.EndPlay();
	}
}
