// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "WindowDriver.h"

#include "Brushes/SlateDynamicImageBrush.h"
#include "EditorDriver.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/PropertyRow.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SSlider.h"

namespace
{
TSharedRef<SWindow> FindWindow(const FString& Title)
{
	for (const TSharedRef<SWindow>& Window : FSlateApplication::Get().GetTopLevelWindows())
	{
		if (Window->GetTitle().ToString().Equals(Title))
		{
			return Window;
		}
	}
	throw FDriverError(FString::Printf(TEXT("no window \"%s\" is open"), *Title));
}

/** The first widget of a type in the window that fits. */
template <class WidgetType, class Predicate>
WidgetType& FindWidget(const FString& Title, const FString& What, Predicate Fits)
{
	WidgetType* Found = nullptr;
	FindWindow(Title)->ForEachWidget(
		[&](SWidget& Widget)
		{
			WidgetType* Candidate = dynamic_cast<WidgetType*>(&Widget);
			Found = !Found && Candidate && Fits(*Candidate) ? Candidate : Found;
		});
	FDriverError::Unless(Found, TEXT("the window \"%s\" shows no %s"), *Title, *What);
	return *Found;
}

SPropertyRow& FindRow(const FString& Title, const FString& Property)
{
	return FindWidget<SPropertyRow>(
		Title, TEXT("property ") + Property, [&](const SPropertyRow& Row) { return Row.GetName() == FName(Property); });
}
} // namespace

TArray<FString> FWindowDriver::Titles() const
{
	TArray<FString> Titles;
	for (const TSharedRef<SWindow>& Window : FSlateApplication::Get().GetTopLevelWindows())
	{
		Titles.Add(Window->GetTitle().ToString());
	}
	return Titles;
}

FPicture FWindowDriver::Picture(const FString& Title) const
{
	const auto BrushOf = [](const SImage& Image)
	{ return dynamic_cast<const FSlateDynamicImageBrush*>(Image.GetImage()); };
	const FSlateDynamicImageBrush& Brush = *BrushOf(FindWidget<SImage>(Title, TEXT("picture"), BrushOf));
	FPicture Picture{FIntPoint(static_cast<int32>(Brush.ImageSize.X), static_cast<int32>(Brush.ImageSize.Y)), {}};
	const TArray<uint8>& Bytes = Brush.ImageData;
	for (int32 Byte = 0; Byte < Bytes.Num(); Byte += 4)
	{
		Picture.Pixels.Add(FColor(Bytes[Byte + 2], Bytes[Byte + 1], Bytes[Byte], Bytes[Byte + 3]));
	}
	return Picture;
}

void FWindowDriver::MoveSlider(const FString& Title, float Value) const
{
	FindWidget<SSlider>(Title, TEXT("slider"), [](const SSlider&) { return true; }).Draw(Value);
}

void FWindowDriver::EditProperty(const FString& Title, const FString& Property, const FString& Value) const
{
	FindRow(Title, Property).Edit(Value);
}

void FWindowDriver::UndoEdit(const FString& Title, const FString& Property) const
{
	FindRow(Title, Property).Undo();
}

void FWindowDriver::Close(const FString& Title) const
{
	FSlateApplication::Get().RequestDestroyWindow(FindWindow(Title));
}
