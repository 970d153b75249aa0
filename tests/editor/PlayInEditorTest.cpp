// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a play session takes along from the pane that it was launched from, and what it leaves behind.
#include "Editor.h"
#include "LookTest.h"
#include "Slate/SceneViewport.h"
#include "UObject/WeakObjectPtr.h"

class PlayInEditor : public FLookTest
{
protected:
	PlayInEditor() { StartWithPanes(); }

	static FTonalithDisplayConfiguration& Playing()
	{
		return DisplayRecords().FindOrAddDisplayConfiguration(GEditor->GetPIEViewport()->GetClient());
	}
};

TEST_F(PlayInEditor, TakesTheWholeRecordOfTheActivePane)
{
	Record(PaneA) = Configured(true, 0.25f, Warm());
	Driver.PlayInPane();
	EXPECT_EQ(RecordText(Playing()), "on 0.25 Warm");

	// Other panes come and go meanwhile. Then one more player joins the session.
	Driver.ClosePane(PaneB);
	Driver.OpenPane(PaneB);
	EXPECT_EQ(RecordText(Playing()), "on 0.25 Warm");
	UGameViewportClient* const First = GEditor->GameViewport;
	GEditor->GameViewport = new UGameViewportClient();
	FSceneViewport Window(GEditor->GameViewport);
	GEditor->GameViewport->SetViewport(&Window);
	UGameViewportClient::OnViewportCreated().Broadcast();
	EXPECT_EQ(RecordText(Playing()), "on 0.25 Warm");
	GEditor->GameViewport->MarkAsGarbage();
	GEditor->GameViewport = First;
	Driver.EndPlay();

	Record(PaneB) = Configured(false, 0.75f, Cold());
	// A look that is switched off goes along switched off, whatever was cancelled before.
	for (const EPlayCancellation Cancellation :
		{EPlayCancellation::MapSaveRefused, EPlayCancellation::NotAuthorized, EPlayCancellation::ErrorPrompt})
	{
		Driver.ActivatePane(PaneA);
		Driver.PlayInWindow(Cancellation);
		EXPECT_EQ(GEditor->GetPIEViewport(), nullptr);
		Driver.ActivatePane(PaneB);
		Driver.PlayInWindow();
		EXPECT_EQ(RecordText(Playing()), "off 0.75 Cold");
		Driver.EndPlay();
	}
}

TEST_F(PlayInEditor, WithoutALookThePlayRecordStaysAsItIs)
{
	Record(PaneA) = Configured(true, 0.25f, nullptr);
	Driver.PlayInPane();
	EXPECT_EQ(RecordText(Playing()), "off 1 no look");
	Playing() = Configured(true, 0.5f, Cold());
	UGameViewportClient::OnViewportCreated().Broadcast();
	EXPECT_EQ(RecordText(Playing()), "on 0.5 Cold");
}

TEST_F(PlayInEditor, TheRecordAndItsHoldOnTheLookEndWithTheSession)
{
	UTonalithObject* const Made = NewObject<UTonalithObject>();
	const FWeakObjectPtr Weak = Made;
	Record(PaneA) = Configured(false, 1.0f, Made);
	Driver.PlayInPane();
	const FViewportClient* const Client = GEditor->GetPIEViewport()->GetClient();
	Record(PaneA).Look = nullptr;
	CollectGarbage();
	EXPECT_EQ(Playing().Look, Made);
	EXPECT_NE(Weak.Get(), nullptr);
	Driver.EndPlay();
	EXPECT_FALSE(HasRecord(Client)) << "the next client at that address would get it";
	CollectGarbage();
	EXPECT_EQ(Weak.Get(), nullptr);
}
