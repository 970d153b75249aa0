// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SLookWindow.h"

#include "Brushes/SlateDynamicImageBrush.h"
#include "TonalithImageDesc.h"
#include "TonalithObject.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SScaleBox.h"
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

/** The picture's rows without gaps, its pixels in the order of textures: blue, green, red, alpha. */
TArray<uint8> TextureFromPicture(const FTonalithAPI_ImageDesc& Image)
{
	constexpr int64 BytesPerPixel = 4;
	TArray<uint8> Texture;
	Texture.SetNumUninitialized(static_cast<int32>(BytesPerPixel * Image.Width * Image.Height));
	uint8* Target = Texture.GetData();
	for (int32 Row = 0; Row < Image.Height; ++Row)
	{
		const uint8* Pixel = Image.Pixels + BytesPerPixel * Row * Image.RowLength;
		for (const uint8* const End = Pixel + BytesPerPixel * Image.Width; Pixel != End; Pixel += BytesPerPixel)
		{
			*Target++ = Pixel[2];
			*Target++ = Pixel[1];
			*Target++ = Pixel[0];
			*Target++ = Pixel[3];
		}
	}
	return Texture;
}

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
				SNew(SScaleBox)
				.Stretch(EStretch::ScaleToFit)
				[
					SAssignNew(PictureWidget, SImage)
				]
			]
			+ SHorizontalBox::Slot()
			.FillWidth(ControlsShare)
			[
				MakeControls(*InArgs._Look)
			]
		]);
	// clang-format on
}

void SLookWindow::ShowPicture(const FTonalithAPI_ImageDesc& Image)
{
	// Textures are found by name: a picture under the name of the one before would not be seen.
	static uint32 Pictures = 0;
	const FName Name(*FString::Printf(TEXT("TonalithPicture%u"), ++Pictures));
	const TSharedPtr<FSlateDynamicImageBrush> Brush = FSlateDynamicImageBrush::CreateWithImageData(
		Name, FVector2D(Image.Width, Image.Height), TextureFromPicture(Image));
	PictureWidget->SetImage(Brush.Get());
	PictureBrush = Brush;
}

FText SLookWindow::GetLookName() const
{
	const UObject* const Shown = Look.Get();
	return Shown ? FText::FromName(Shown->GetFName()) : FText::GetEmpty();
}
