// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The icons of looks.
#include "Host/ContentBrowser.h"
#include "ImportOverride.h"
#include "Interfaces/IPluginManager.h"
#include "LookTest.h"
#include "Styling/SlateStyleRegistry.h"
#include "TonalithObject.h"

class LookStyle : public FLookTest
{
protected:
	/** The image files of the class, each behind its width and height. */
	static FLines Icons()
	{
		FLines Found;
		for (const TCHAR* Kind : {TEXT("ClassThumbnail"), TEXT("ClassIcon")})
		{
			if (const FSlateBrush* Brush = HostContentBrowser::FindClassBrush(Kind, *UTonalithObject::StaticClass()))
			{
				Found.push_back(std::to_string(int(Brush->ImageSize.X)) + " x " +
								std::to_string(int(Brush->ImageSize.Y)) + " " +
								TCHAR_TO_UTF8(*Brush->GetResourceName().ToString()));
			}
		}
		return Found;
	}

	/** A session for which the plug-in lies somewhere, or nowhere. */
	void StartWithPlugin(const TSharedPtr<IPlugin>& Plugin)
	{
		struct FOnePlugin : IPluginManager
		{
			TSharedPtr<IPlugin> FindPlugin(const ANSICHAR*) override { return Plugin; }

			TSharedPtr<IPlugin> Plugin;
		} Manager;
		Manager.Plugin = Plugin;
		const ImportOverride manager(
			"_ZN14IPluginManager3GetEv", &IPluginManager::Get, [&]() -> IPluginManager& { return Manager; },
			EditorLibrary());
		Driver.Start(Options);
	}
};

TEST_F(LookStyle, IconsOfTheClassAreNamedWhetherTheirFilesAreThereOrNot)
{
	StartWithPlugin(MakeShared<IPlugin>(TEXT("../Nowhere")));
	EXPECT_THAT(Icons(), testing::ElementsAre("64 x 64 ../Nowhere/Editor/Icons/TonalithIcon_64x.png",
							 "20 x 20 ../Nowhere/Editor/Icons/TonalithIcon_20x.png"));
	Driver.UnloadModule(TEXT("TonalithEditor"));
	EXPECT_THAT(Icons(), testing::IsEmpty());
}

TEST_F(LookStyle, WithoutThePluginsFolderTheSetIsRegisteredEmpty)
{
	StartWithPlugin(nullptr);
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle("TonalithStyle"), nullptr);
	EXPECT_THAT(Icons(), testing::IsEmpty());
}
