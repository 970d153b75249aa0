// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the runtime module promises to the modules beside it.
#include "LookTest.h"
#include "UnrealClient.h"

using testing::ElementsAre;

class RuntimeContract : public FLookTest
{
};

TEST_F(RuntimeContract, RecordsStayWhereTheyAreUntilRemoved)
{
	Driver.Start(Options);
	std::vector<FViewportClient> Clients(1000);
	std::vector<FTonalithDisplayConfiguration*> Records;
	for (FViewportClient& Client : Clients)
	{
		EXPECT_FALSE(HasRecord(&Client));
		Records.push_back(&DisplayRecords().FindOrAddDisplayConfiguration(&Client));
		EXPECT_EQ(RecordText(*Records.back()), "off 1 no look");
	}
	for (size_t Index = 0; Index < Clients.size(); Index += 2)
	{
		EXPECT_TRUE(DisplayRecords().RemoveDisplayConfiguration(&Clients[Index]));
		EXPECT_FALSE(DisplayRecords().RemoveDisplayConfiguration(&Clients[Index]));
	}
	for (size_t Index = 0; Index < Clients.size(); ++Index)
	{
		EXPECT_EQ(DisplayRecords().GetDisplayConfiguration(&Clients[Index]), Index % 2 ? Records[Index] : nullptr);
	}
}

TEST_F(RuntimeContract, TheRegistryIsTheFirstOwnVirtualFunction)
{
	class IAnyModule : public IModuleInterface
	{
	public:
		virtual void* FirstOwn() = 0;
	};
	Driver.Start(Options);
	EXPECT_EQ(FModuleManager::LoadModuleChecked<IAnyModule>("Tonalith").FirstOwn(), &DisplayRecords());
}

TEST_F(RuntimeContract, TheModuleIsReachedAnewAtEachUse)
{
	StartWithPanes();
	OpenLookMenu();
	Record(PaneA) = Configured(false, 0.25f, Warm());
	TakeTrace();
	Driver.UnloadModule(TEXT("Tonalith"));
	FModuleManager::Get().LoadModuleChecked("Tonalith");
	EXPECT_THAT(TakeTrace(),
		ElementsAre("shut down module Tonalith", "unbind FCoreDelegates::OnPostEngineInit (1)",
			"unbind FEditorDelegates::ShutdownPIE (1)", "unbind UEditorEngine::OnViewportClientListChanged (1)",
			"start module Tonalith", "bind FCoreDelegates::OnPostEngineInit", "register view extension",
			"bind UEditorEngine::OnViewportClientListChanged", "bind FEditorDelegates::ShutdownPIE"));
	EXPECT_FALSE(HasRecord(&Driver.Pane(PaneA).GetLevelViewportClient()));
	Driver.Menus().ClickCheckBox(TEXT("EnableDisplay"));
	EXPECT_EQ(Shown(PaneA), "on 1 no look");
}

TEST_F(RuntimeContract, WithoutTheRuntimeModuleThePaneIsFatal)
{
	EXPECT_EXIT(
		{
			Driver.Start(Options);
			Driver.UnloadModule(TEXT("Tonalith"));
			FModuleManager::Get().RegisterStaticallyLinkedModule(
				"Tonalith", []() -> IModuleInterface* { return nullptr; });
			Driver.OpenPane(PaneA);
		},
		testing::ExitedWithCode(3),
		testing::AllOf(testing::HasSubstr("Assertion failed: Module "), testing::HasSubstr("ModuleName=Tonalith,")));
}
