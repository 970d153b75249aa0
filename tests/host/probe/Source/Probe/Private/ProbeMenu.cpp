// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ProbeMenu.h"

#include "Framework/Application/SlateApplication.h"
#include "Probe.h"
#include "PropertyCustomizationHelpers.h"
#include "ToolMenus.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"

DEFINE_LOG_CATEGORY_STATIC(LogProbeMenu, Log, All);

namespace
{
void Report(const FString& Event)
{
	UE_LOG(LogProbeMenu, Display, TEXT("%s, %d menus open"), *Event, FSlateApplication::Get().GetOpenMenus().Num());
}

FText Text(const TCHAR* Literal)
{
	return FText::FromString(Literal);
}

/** What was chosen last. */
FAssetData Choice;

DECLARE_DELEGATE_OneParam(FOnProbeToggled, bool);

class SProbeWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SProbeWidget) : _bEnabled(false) {}
	SLATE_ARGUMENT(bool, bEnabled)
	SLATE_EVENT(FOnProbeToggled, OnToggled)
	SLATE_END_ARGS()

	~SProbeWidget() override { UE_LOG(LogProbeMenu, Display, TEXT("widget destroyed")); }

	void Construct(const FArguments& InArgs)
	{
		bEnabled = InArgs._bEnabled;
		OnToggled = InArgs._OnToggled;
		const FName Name = "Probe.Widget";
		UToolMenus* Menus = UToolMenus::Get();
		UToolMenu* Menu = Menus->IsMenuRegistered(Name) ? Menus->FindMenu(Name) : Menus->RegisterMenu(Name);
		FToolMenuSection& Section = Menu->AddSection("Probe", FText());
		Section.AddMenuEntry("Enabled", Text(TEXT("Is enabled")), FText(), FSlateIcon(),
			FUIAction(FExecuteAction::CreateSP(this, &SProbeWidget::Toggle), FCanExecuteAction(),
				FIsActionChecked::CreateSP(this, &SProbeWidget::IsEnabled)),
			EUserInterfaceActionType::ToggleButton);
		Section.AddEntry(FToolMenuEntry::InitSubMenu("Choice", TAttribute<FText>(this, &SProbeWidget::GetChoice),
			FText(), FNewToolMenuDelegate::CreateSP(this, &SProbeWidget::MakeChoiceMenu), FToolUIActionChoice(),
			EUserInterfaceActionType::None));
		MenuWidget = Menus->GenerateWidget(Name, FToolMenuContext());
		// clang-format off
		ChildSlot
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight().Padding(0.0f, 0.0f, 4.0f, 0.0f)
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

private:
	bool IsEnabled() const { return bEnabled; }

	void Toggle()
	{
		bEnabled = !bEnabled;
		OnToggled.ExecuteIfBound(bEnabled);
	}

	FText GetChoice() const { return Choice.IsValid() ? FText::FromName(Choice.AssetName) : Text(TEXT("Choose")); }

	void MakeChoiceMenu(UToolMenu* Menu)
	{
		const TSharedRef<SWidget> Picker = PropertyCustomizationHelpers::MakeAssetPickerWithMenu(Choice,
			Choice.IsValid(), false, {UProbeSettings::StaticClass()}, {},
			FOnShouldFilterAsset::CreateLambda([Hidden = Choice](const FAssetData& Asset) { return Asset == Hidden; }),
			FOnAssetSelected::CreateSP(this, &SProbeWidget::Choose),
			FSimpleDelegate::CreateLambda([] { Report(TEXT("closed")); }));
		Menu->AddSection("Assets", Text(TEXT("Assets")))
			.AddEntry(FToolMenuEntry::InitWidget("Picker", Picker, FText(), true, false));
	}

	void Choose(const FAssetData& Asset)
	{
		Choice = Asset;
		Report(TEXT("set ") + Asset.AssetName.ToString());
		FSlateApplication::Get().DismissMenuByWidget(MenuWidget.ToSharedRef());
	}

	bool bEnabled = false;
	FOnProbeToggled OnToggled;
	TSharedPtr<SWidget> MenuWidget;
};

void MakeProbeMenu(UToolMenu* Menu)
{
	TSharedPtr<SProbeWidget> Widget;
	SAssignNew(Widget, SProbeWidget)
		.bEnabled(true)
		.OnToggled(FOnProbeToggled::CreateLambda([](bool bOn) { Report(bOn ? TEXT("on") : TEXT("off")); }));
	UE_LOG(LogProbeMenu, Display, TEXT("%s has %d sections"), *Menu->MenuName.ToString(), Menu->Sections.Num());
	Menu->AddSection("Probe", Text(TEXT("Widget")))
		.AddEntry(FToolMenuEntry::InitWidget("Widget", Widget.ToSharedRef(), FText()));
}
} // namespace

void RegisterProbeMenu(IProbeModule& Owner)
{
	const FToolMenuOwnerScoped Scope(&Owner);
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("LevelEditor.LevelViewportToolBar.View");
	Menu->AddSection("Probe", Text(TEXT("Probing")))
		.AddSubMenu("Probe", Text(TEXT("Probe")), FText(), FNewToolMenuDelegate::CreateStatic(&MakeProbeMenu));
}
