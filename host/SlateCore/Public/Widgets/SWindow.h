// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Math/Vector2D.h"
#include "Widgets/SCompoundWidget.h"

/** A window; the application owns it from FSlateApplication::AddWindow until it closes. */
class SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow) {}
	SLATE_ARGUMENT(TAttribute<FText>, Title)
	SLATE_ARGUMENT(FVector2D, ClientSize)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		Title = InArgs._Title;
		ChildSlot[InArgs._Content.ToSharedRef()];
	}

	FText GetTitle() const { return Title.Get(); }

	void BringToFront(bool = false) { HostTrace::Line(TEXT("bring window %s to front"), *GetTitle().ToString()); }

private:
	TAttribute<FText> Title;
};
