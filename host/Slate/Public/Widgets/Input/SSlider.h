// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

DECLARE_DELEGATE_OneParam(FOnFloatValueChanged, float);

/** A handle that is drawn between 0 and 1. */
class SSlider : public SWidget
{
public:
	SLATE_BEGIN_ARGS(SSlider) : _Value(0.0f) {}
	SLATE_ARGUMENT(float, Value)
	SLATE_EVENT(FOnFloatValueChanged, OnValueChanged)
	SLATE_ARGUMENT(TAttribute<FText>, ToolTipText)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Slider = InArgs; }

	/** As a user draws it. */
	void Draw(float Value)
	{
		Slider._Value = Value;
		Slider._OnValueChanged.ExecuteIfBound(Value);
	}

private:
	FArguments Slider;
};
