// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Places for the children of a widget.
#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"

class SWidget;

/** What all slots have. Nothing is laid out: the values are there to be read. */
struct FSlotBase
{
	/** Null while the slot is empty. */
	TSharedPtr<SWidget> Widget;

	FMargin SlotPadding;
	EHorizontalAlignment HAlignment = HAlign_Fill;
	EVerticalAlignment VAlignment = VAlign_Fill;

	/** Takes as much room as its widget needs; otherwise an equal share of what is left. */
	bool bIsAutoSized = false;
};

/** The setters, which can be chained. */
template <typename SlotType>
struct TSlot : FSlotBase
{
	SlotType& HAlign(EHorizontalAlignment InHAlignment)
	{
		HAlignment = InHAlignment;
		return Me();
	}

	SlotType& VAlign(EVerticalAlignment InVAlignment)
	{
		VAlignment = InVAlignment;
		return Me();
	}

	SlotType& Padding(const FMargin& InPadding)
	{
		SlotPadding = InPadding;
		return Me();
	}

	SlotType& Padding(float Horizontal, float Vertical) { return Padding(FMargin(Horizontal, Vertical)); }

	SlotType& Padding(float Left, float Top, float Right, float Bottom)
	{
		return Padding(FMargin(Left, Top, Right, Bottom));
	}

	SlotType& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		Widget = InChildWidget;
		return Me();
	}

protected:
	SlotType& Me() { return static_cast<SlotType&>(*this); }
};
