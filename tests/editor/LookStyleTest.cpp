// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The icons of looks.
#include "Host/ContentBrowser.h"
#include "ImportOverride.h"
#include "Interfaces/IPluginManager.h"
#include "LookTest.h"
#include "Misc/Paths.h"
#include "Styling/SlateStyleRegistry.h"
#include "TonalithObject.h"

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

namespace
{
const FSlateBrush* Brush(const TCHAR* Kind)
{
	return HostContentBrowser::FindClassBrush(Kind, *UTonalithObject::StaticClass());
}
} // namespace

class LookStyle : public FLookTest
{
};

TEST_F(LookStyle, BrushesAreFoundForTheClassAndGoWithTheModule)
{
	Driver.Start(Options);
	struct FRow
	{
		const TCHAR* Kind;
		const char* File;
		float Size;
	};
	for (const FRow& Row : {FRow{TEXT("ClassThumbnail"), "/Tonalith/Editor/Icons/TonalithIcon_64x.png", 64.0f},
			 FRow{TEXT("ClassIcon"), "/Tonalith/Editor/Icons/TonalithIcon_20x.png", 20.0f}})
	{
		const FSlateBrush* Found = Brush(Row.Kind);
		ASSERT_NE(Found, nullptr);
		const FString File = Found->GetResourceName().ToString();
		EXPECT_THAT(std::string(TCHAR_TO_UTF8(*File)), EndsWith(Row.File));
		EXPECT_TRUE(FPaths::FileExists(File));
		EXPECT_EQ(Found->ImageSize, FVector2f(Row.Size, Row.Size));
		EXPECT_EQ(Found->Tiling, ESlateBrushTileType::NoTile);
		EXPECT_EQ(Found->ImageType, ESlateBrushImageType::FullColor);
		EXPECT_EQ(Found->DrawAs, ESlateBrushDrawType::Image);
		for (const float Channel : {Found->TintColor.R, Found->TintColor.G, Found->TintColor.B, Found->TintColor.A})
		{
			EXPECT_EQ(Channel, 1.0f);
		}
	}
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle("TonalithStyle"), nullptr);
	EXPECT_THAT(TakeLog("LogTemp"), IsEmpty());
	Driver.UnloadModule(TEXT("TonalithEditor"));
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("TonalithStyle"), nullptr);
	EXPECT_EQ(Brush(TEXT("ClassIcon")), nullptr);
	Driver.Quit();
}

TEST_F(LookStyle, WithoutThePluginsFolderTheSetIsRegisteredEmpty)
{
	struct FNoPlugins : IPluginManager
	{
		TSharedPtr<IPlugin> FindPlugin(const ANSICHAR*) override { return nullptr; }
	} NoPlugins;
	const ImportOverride manager(
		"_ZN14IPluginManager3GetEv", &IPluginManager::Get, [&]() -> IPluginManager& { return NoPlugins; },
		EditorLibrary());
	Driver.Start(Options);
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle("TonalithStyle"), nullptr);
	EXPECT_EQ(Brush(TEXT("ClassIcon")), nullptr);
	EXPECT_EQ(Brush(TEXT("ClassThumbnail")), nullptr);
	EXPECT_THAT(TakeLog("LogTemp"), IsEmpty());
	Driver.Quit();
}

TEST_F(LookStyle, AMissingIconIsLogged)
{
	const ImportOverride files(
		"_ZN6FPaths10FileExistsERK7FString", &FPaths::FileExists,
		[](const FString& Path) { return Path.EndsWith(TEXT("_64x.png")); }, EditorLibrary());
	Driver.Start(Options);
	EXPECT_NE(Brush(TEXT("ClassIcon")), nullptr);
	const FLines Log = TakeLog("LogTemp");
	ASSERT_EQ(Log.size(), 1u);
	EXPECT_THAT(Log[0], testing::StartsWith("Warning: InitializeStyle: "));
	EXPECT_THAT(Log[0], EndsWith("/Editor/Icons/TonalithIcon_20x.png is missing"));
	Driver.Quit();
}

TEST_F(LookStyle, AMissingFolderOfIconsIsNot)
{
	const ImportOverride folders(
		"_ZN6FPaths15DirectoryExistsERK7FString", &FPaths::DirectoryExists, [](const FString&) { return false; },
		EditorLibrary());
	Driver.Start(Options);
	EXPECT_NE(Brush(TEXT("ClassIcon")), nullptr);
	EXPECT_THAT(TakeLog("LogTemp"), IsEmpty());
	Driver.Quit();
}
