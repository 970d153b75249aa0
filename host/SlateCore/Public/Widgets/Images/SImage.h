// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Styling/SlateBrush.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** Shows a brush, which stays its owner's. */
class SImage : public SWidget
{
public:
	SLATE_BEGIN_ARGS(SImage) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&) {}

	void SetImage(TAttribute<const FSlateBrush*> InImage) { Image = InImage; }

	/** For the driver. */
	const FSlateBrush* GetImage() const { return Image.Get(); }

private:
	TAttribute<const FSlateBrush*> Image;
};
