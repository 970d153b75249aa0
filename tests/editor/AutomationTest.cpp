// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The tests that run in the engine too, from the same source, in one session.
#include "Host/AutomationTests.h"
#include "LookTest.h"

class Automation : public FLookTest
{
protected:
	Automation() { Options.PluginFolders.Add(TEXT(EDITOR_TEST_PLUGINS) TEXT("/../engine-tests")); }
};

TEST_F(Automation, TestsOfThePluginPassInASessionAndSeeWhenItIsGone)
{
	StartWithPanes();
	const TArray<FAutomationTestBase*> Tests = HostAutomation::GetTests();
	for (FAutomationTestBase* Each : Tests)
	{
		for (const FString& Error : Each->Run())
		{
			ADD_FAILURE() << TCHAR_TO_UTF8(*Each->GetTestFullName()) << ": " << TCHAR_TO_UTF8(*Error);
		}
	}
	// The last one has unloaded it: nobody stores another viewport.
	Driver.OpenPane(TEXT("OnePane.Viewport 1.Viewport0"));
	FLines Passed;
	for (FAutomationTestBase* Each : Tests)
	{
		if (Each->Run().IsEmpty())
		{
			Passed.push_back(TCHAR_TO_UTF8(*Each->GetTestFullName()));
		}
	}
	EXPECT_THAT(Passed,
		testing::ElementsAre("Tonalith.Assets.TheFactoryMakesLooks", "Tonalith.Files.ALookComesBackFromItsCube"))
		<< "these need classes alone, which stay";
}
