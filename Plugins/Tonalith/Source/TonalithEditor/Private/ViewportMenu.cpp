// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Editor.h"
#include "EditorStringTable.h"
#include "MenuNames.h"
#include "TextKeys.h"
#include "TonalithDisplayManager.h"
#include "TonalithEditorModule.h"
#include "TonalithRuntime.h"
#include "ToolMenus.h"
#include "UnrealClient.h"
#include "Widgets/STonalithWidget.h"

void FTonalithEditorModule::RegisterMenus()
{
	const FToolMenuOwnerScoped OwnerScope(this);
	UToolMenu* ViewMenu = UToolMenus::Get()->ExtendMenu(MenuNames::ViewMenu);
	// Whoever made the section first has labelled it.
	FToolMenuSection* Section = ViewMenu->FindSection(MenuNames::ColorManagement);
	if (!Section)
	{
		ViewMenu->AddSection(MenuNames::ColorManagement, LocalizedText(TextKeys::ColorManagement, {}));
		Section = ViewMenu->FindSection(MenuNames::ColorManagement);
	}
	check(Section);
	Section->AddSubMenu(MenuNames::DisplaySubMenu, LocalizedText(TextKeys::DisplaySubMenu, {}),
		LocalizedText(TextKeys::DisplaySubMenuToolTip, {}),
		FNewToolMenuDelegate::CreateRaw(this, &FTonalithEditorModule::MakeDisplaySubMenu), false, FSlateIcon(), true);
}

void FTonalithEditorModule::UnregisterMenus()
{
	UToolMenus::UnregisterOwner(this);
}

void FTonalithEditorModule::MakeDisplaySubMenu(UToolMenu* Menu)
{
	FViewport* Viewport = GEditor->GetActiveViewport();
	TrackViewport(Viewport);
	const FTonalithDisplayConfiguration& Configuration =
		GetTonalithDisplayManager().FindOrAddDisplayConfiguration(Viewport->GetClient());

	FToolMenuSection& Section =
		Menu->AddSection(MenuNames::DisplayConfiguration, LocalizedText(TextKeys::DisplayConfiguration, {}));
	const TSharedRef<STonalithWidget> Widget =
		SNew(STonalithWidget)
			.Viewport(Viewport)
			.DisplayConfiguration(Configuration)
			.OnDisplayConfigurationChanged_Raw(this, &FTonalithEditorModule::HandleDisplayConfigurationChanged);
	Section.AddEntry(FToolMenuEntry::InitWidget(
		MenuNames::ConfigurationWidget, Widget, FText::GetEmpty(), true, false, false, FText::GetEmpty()));
}

void FTonalithEditorModule::HandleDisplayConfigurationChanged(const FTonalithDisplayConfiguration& Configuration)
{
	// The viewport that is active now; as long as the menu is open it is the one that the widget was made for.
	GetTonalithDisplayManager().FindOrAddDisplayConfiguration(GEditor->GetActiveViewport()->GetClient()) =
		Configuration;
}
