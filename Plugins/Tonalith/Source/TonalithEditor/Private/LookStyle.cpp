// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Brushes/SlateImageBrush.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "TonalithEditorModule.h"

namespace
{
struct FLookIcon
{
	/** The editor finds it by the name of the class. */
	const char* Brush;
	const char* File;

	/** Width and height, in units of the user interface. */
	float Size;
};

constexpr FLookIcon Icons[] = {
	{"ClassThumbnail.TonalithObject", "TonalithIcon_64x", 64.0f},
	{"ClassIcon.TonalithObject", "TonalithIcon_20x", 20.0f},
};

void AddIcons(FSlateStyleSet& Style)
{
	for (const FLookIcon& Icon : Icons)
	{
		Style.Set(Icon.Brush,
			new FSlateImageBrush(Style.RootToContentDir(Icon.File, TEXT(".png")), FVector2f(Icon.Size, Icon.Size)));
	}
}
} // namespace

void FTonalithEditorModule::InitializeStyle()
{
	Style = MakeUnique<FSlateStyleSet>("TonalithStyle");
	if (const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin("Tonalith"))
	{
		Style->SetContentRoot(FPaths::Combine(Plugin->GetBaseDir(), TEXT("Editor/Icons")));
		AddIcons(*Style);
	}
	FSlateStyleRegistry::RegisterSlateStyle(*Style);
}

void FTonalithEditorModule::ReleaseStyle()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*Style);
	Style.Reset();
}
