// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SLookWindow.h"

#include "SLookPicture.h"
#include "TonalithObject.h"
#include "Widgets/SBoxPanel.h"

#if WITH_EDITOR
#include "IDetailsView.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#else
#include "Widgets/SNullWidget.h"
#endif

namespace
{
/** In units of the user interface. */
const FVector2D WindowSize(960.0, 480.0);

/** How the window's width is shared. */
constexpr float PictureShare = 2.0f;
constexpr float ControlsShare = 1.0f;

/** The look's properties to edit; nothing outside the editor. */
TSharedRef<SWidget> MakeControls(UTonalithObject& Look)
{
#if WITH_EDITOR
	FDetailsViewArgs Arguments;
	Arguments.NameAreaSettings = FDetailsViewArgs::HideNameArea;
	const TSharedRef<IDetailsView> Controls =
		FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor").CreateDetailView(Arguments);
	Controls->SetObject(&Look);
	return Controls;
#else
	return SNullWidget::NullWidget;
#endif
}
} // namespace

void SLookWindow::Construct(const FArguments& InArgs)
{
	Look = InArgs._Look;
	// clang-format off
	SWindow::Construct(SWindow::FArguments()
		.Title(TAttribute<FText>(this, &SLookWindow::GetLookName))
		.ClientSize(WindowSize)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.FillWidth(PictureShare)
			[
				SAssignNew(Picture, SLookPicture)
				.Look(InArgs._Look)
			]
			+ SHorizontalBox::Slot()
			.FillWidth(ControlsShare)
			[
				MakeControls(*InArgs._Look)
			]
		]);
	// clang-format on
}

void SLookWindow::ShowFrame(const FTonalithAPI_ImageDesc& Image)
{
	Picture->ShowFrame(Image);
}

void SLookWindow::OnLookChanged()
{
	Picture->Regrade();
}

FText SLookWindow::GetLookName() const
{
	const UObject* const Shown = Look.Get();
	return Shown ? FText::FromName(Shown->GetFName()) : FText::GetEmpty();
}
