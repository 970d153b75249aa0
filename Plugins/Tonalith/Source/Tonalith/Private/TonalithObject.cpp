// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithObject.h"

#include "Framework/Application/SlateApplication.h"
#include "SLookWindow.h"
#include "TonalithImageDesc.h"

#if WITH_EDITOR
#include "Editor.h"
#include "UObject/UnrealType.h"
#endif

namespace
{
bool IsConsistent(const FTonalithAPI_ImageDesc& Image)
{
	const auto IsSide = [](int32 Length) { return Length > 0 && Length <= FTonalithAPI_ImageDesc::LongestSide; };
	return Image.Version == 1 && Image.Pixels && IsSide(Image.Width) && IsSide(Image.Height) &&
		   Image.RowLength >= Image.Width;
}

/** The window shows the values as they are stored: 8 bits from 0 to 1. */
bool IsShownAsStored(const FTonalithAPI_ImageDesc& Image)
{
	return Image.ValueScale == 1.0f && Image.ValueOffset == 0.0f && Image.ExposureScale == 1.0f &&
		   Image.ExposureOffset == 0.0f && Image.Minimum <= 0.0f && Image.Maximum >= 1.0f;
}
} // namespace

void UTonalithObject::DisplayUserInterface(FTonalithAPI_ImageDesc& Image)
{
	if (!IsConsistent(Image) || !IsShownAsStored(Image))
	{
		UE_LOG(LogTemp, Warning, TEXT("DisplayUserInterface: the picture for %s is refused"), *GetName());
		return;
	}
	if (!FSlateApplication::IsInitialized())
	{
		return;
	}
	TSharedPtr<SLookWindow> Shown = Window.Pin();
	if (!Shown.IsValid())
	{
		Shown = SNew(SLookWindow).Look(this);
		FSlateApplication::Get().AddWindow(Shown.ToSharedRef());
		Window = Shown;
	}
	Shown->ShowFrame(Image);
	Shown->BringToFront();
}

void UTonalithObject::BeginDestroy()
{
	if (const TSharedPtr<SLookWindow> Shown = Window.Pin())
	{
		FSlateApplication::Get().RequestDestroyWindow(Shown.ToSharedRef());
	}
	Super::BeginDestroy();
}

#if WITH_EDITOR
void UTonalithObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	MarkPackageDirty();
	if (const TSharedPtr<SLookWindow> Shown = Window.Pin())
	{
		Shown->OnLookChanged();
	}
	if (GEditor)
	{
		GEditor->RedrawAllViewports();
	}
}
#endif
