// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "SLookPicture.h"

#include "Brushes/SlateDynamicImageBrush.h"
#include "Color/TableGrader.h"
#include "LookGrading.h"
#include "LookTableInUse.h"
#include "Templates/Casts.h"
#include "TonalithObject.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SSlider.h"
#include "Widgets/Layout/SScaleBox.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "Tonalith"

void SLookPicture::Construct(const FArguments& InArgs)
{
	Look = InArgs._Look;
	// clang-format off
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.FillHeight(1.0f)
		[
			SNew(SScaleBox)
			.Stretch(EStretch::ScaleToFit)
			[
				SAssignNew(Image, SImage)
			]
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(SSlider)
			.Value(Line)
			.OnValueChanged(this, &SLookPicture::OnLineMoved)
			.ToolTipText(LOCTEXT("Line_ToolTip", "Left of the line, the frame is shown without the look."))
		]
	];
	// clang-format on
}

void SLookPicture::ShowFrame(const FTonalithAPI_ImageDesc& InImage)
{
	Frame = FLookFrame(InImage);
	Regrade();
}

void SLookPicture::Regrade()
{
	bIsGraded = false;
	RequestDrawing();
}

void SLookPicture::OnLineMoved(float InLine)
{
	Line = InLine;
	RequestDrawing();
}

void SLookPicture::RequestDrawing()
{
	if (!bIsDrawingDue)
	{
		bIsDrawingDue = true;
		RegisterActiveTimer(0.0f, FWidgetActiveTimerDelegate::CreateSP(this, &SLookPicture::Draw));
	}
}

EActiveTimerReturnType SLookPicture::Draw(double, float)
{
	bIsDrawingDue = false;
	const UTonalithObject* const Shown = Cast<UTonalithObject>(Look.Get());
	if (!Shown)
	{
		return EActiveTimerReturnType::Stop;
	}
	if (!bIsGraded)
	{
		const LookColor::FGrading Grading = GradingOf(*Shown);
		const TSharedPtr<const FLookTableInUse> Table = Shown->GetTable();
		Table.IsValid() ? Frame.Grade(LookColor::FTableGrader(Grading, Table->Table, Table->Cube))
						: Frame.Grade(LookColor::FControlsGrader(Grading));
		bIsGraded = true;
	}
	// Textures are found by name: a picture under the name of the one before would not be seen. The names share their text,
	// so that the table of names, which never shrinks, does not grow with each picture.
	static uint32 Pictures = 0;
	const FName Name(*FString::Printf(TEXT("TonalithPicture_%u"), ++Pictures));
	const FVector2D Size(Frame.GetSize().X, Frame.GetSize().Y);
	const TSharedPtr<FSlateDynamicImageBrush> Drawn =
		FSlateDynamicImageBrush::CreateWithImageData(Name, Size, Frame.MakeTexture(Line));
	Image->SetImage(Drawn.Get());
	Brush = Drawn;
	return EActiveTimerReturnType::Stop;
}

#undef LOCTEXT_NAMESPACE
