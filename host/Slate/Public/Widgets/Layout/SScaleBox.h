// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/SCompoundWidget.h"

namespace EStretch
{
enum Type
{
	/** As large as there is room for without changing the proportions. */
	ScaleToFit,
};
} // namespace EStretch

/** Fits its content into the room that it has. */
class SScaleBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SScaleBox) : _Stretch(EStretch::ScaleToFit) {}
	SLATE_ARGUMENT(EStretch::Type, Stretch)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { ChildSlot[InArgs._Content.ToSharedRef()]; }
};
