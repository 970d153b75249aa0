// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Places for the children of a widget.
#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"

class SWidget;

/** What all slots have. Nothing is laid out: the values are there to be read. */
struct FSlotBase
{
	/** Null while the slot is empty. */
	TSharedPtr<SWidget> Widget;

	FMargin SlotPadding;
};

/** The setters, which can be chained. */
template <typename SlotType>
struct TSlot : FSlotBase
{
	SlotType& Padding(float Left, float Top, float Right, float Bottom)
	{
		SlotPadding = FMargin(Left, Top, Right, Bottom);
		return Me();
	}

	SlotType& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		Widget = InChildWidget;
		return Me();
	}

protected:
	SlotType& Me() { return static_cast<SlotType&>(*this); }
};
