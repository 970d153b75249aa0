// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Widgets/STonalithWidget.h"

#include "AssetRegistry/AssetData.h"
#include "EditorStringTable.h"
#include "Framework/Application/SlateApplication.h"
#include "MenuNames.h"
#include "PropertyCustomizationHelpers.h"
#include "Templates/Casts.h"
#include "TextKeys.h"
#include "TonalithObject.h"
#include "ToolMenus.h"
#include "Widgets/SBoxPanel.h"

void STonalithWidget::Construct(const FArguments& InArgs)
{
	Viewport = InArgs._Viewport;
	DisplayConfiguration = InArgs._DisplayConfiguration;
	OnDisplayConfigurationChanged = InArgs._OnDisplayConfigurationChanged;
	check(Viewport);

	UToolMenu* Menu = FindOrRegisterMenu();
	check(Menu);
	// The menu stays registered: entries of the same names replace those of the widget before.
	FToolMenuSection& Section = Menu->AddSection(MenuNames::DisplayConfiguration, FText::GetEmpty());
	Section.AddMenuEntry(MenuNames::EnableDisplay, LocalizedText(TextKeys::EnableDisplay, {}),
		LocalizedText(TextKeys::EnableDisplayToolTip, {}), FSlateIcon(),
		FUIAction(FExecuteAction::CreateSP(this, &STonalithWidget::ToggleDisplay),
			FCanExecuteAction::CreateLambda([] { return true; }),
			FIsActionChecked::CreateSP(this, &STonalithWidget::IsDisplayEnabled)),
		EUserInterfaceActionType::ToggleButton);
	Section.AddEntry(FToolMenuEntry::InitSubMenu(MenuNames::AssetSelection,
		TAttribute<FText>(this, &STonalithWidget::GetAssetSelectionLabel),
		LocalizedText(TextKeys::AssetSelectionToolTip, {}),
		FNewToolMenuDelegate::CreateSP(this, &STonalithWidget::MakeAssetSelectionMenu), FToolUIActionChoice(),
		EUserInterfaceActionType::None, false, FSlateIcon(), true));

	MenuWidget = UToolMenus::Get()->GenerateWidget(MenuNames::WidgetMenu, FToolMenuContext());
	// clang-format off
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(0, 0, 4, 0)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			[
				MenuWidget.ToSharedRef()
			]
		]
	];
	// clang-format on
}

void STonalithWidget::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(DisplayConfiguration.Look);
}

FString STonalithWidget::GetReferencerName() const
{
	return TEXT("STonalithWidget");
}

UToolMenu* STonalithWidget::FindOrRegisterMenu() const
{
	UToolMenus* Menus = UToolMenus::Get();
	// A menu that was only extended can be found too, but is not registered.
	return Menus->IsMenuRegistered(MenuNames::WidgetMenu)
			   ? Menus->FindMenu(MenuNames::WidgetMenu)
			   : Menus->RegisterMenu(MenuNames::WidgetMenu, NAME_None, EMultiBoxType::Menu, true);
}

bool STonalithWidget::IsDisplayEnabled() const
{
	return DisplayConfiguration.bDisplay;
}

void STonalithWidget::ToggleDisplay()
{
	DisplayConfiguration.bDisplay = !DisplayConfiguration.bDisplay;
	// On switching off too: a look that is switched shows in full from then on.
	DisplayConfiguration.Weight = 1.0f;
	SendConfiguration();
}

FText STonalithWidget::GetAssetSelectionLabel() const
{
	return DisplayConfiguration.Look ? FText::FromName(DisplayConfiguration.Look->GetFName())
									 : LocalizedText(TextKeys::AssetSelection, {});
}

void STonalithWidget::MakeAssetSelectionMenu(UToolMenu* Menu)
{
	const FAssetData Current = DisplayConfiguration.Look ? FAssetData(DisplayConfiguration.Look.Get()) : FAssetData();
	const TArray<const UClass*> Classes{UTonalithObject::StaticClass()};
	FToolMenuSection& Section =
		Menu->AddSection(MenuNames::AssetSelection, LocalizedText(TextKeys::AssetSelectionSection, {}));
	const TSharedRef<SWidget> Picker = PropertyCustomizationHelpers::MakeAssetPickerWithMenu(Current,
		DisplayConfiguration.Look != nullptr, false, Classes, TArray<UFactory*>(),
		FOnShouldFilterAsset::CreateLambda([Current](const FAssetData& Asset)
			{ return Asset.PackageName == Current.PackageName && Asset.AssetName == Current.AssetName; }),
		FOnAssetSelected::CreateSP(this, &STonalithWidget::OnAssetSelected), FSimpleDelegate());
	Section.AddEntry(FToolMenuEntry::InitWidget(MenuNames::AssetPicker, Picker, FText::GetEmpty(), true, false, false));
}

void STonalithWidget::OnAssetSelected(const FAssetData& Asset)
{
	// A copy: closing the menu may end the picker that the asset data belongs to.
	const FAssetData Chosen = Asset;
	FSlateApplication::Get().DismissMenuByWidget(MenuWidget.ToSharedRef());
	DisplayConfiguration.Look = Cast<UTonalithObject>(Chosen.GetAsset());
	SendConfiguration();
}

void STonalithWidget::SendConfiguration() const
{
	OnDisplayConfigurationChanged.ExecuteIfBound(DisplayConfiguration);
}
