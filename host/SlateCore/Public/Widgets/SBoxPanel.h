// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Panels that lay their children out in a row.
#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

template <typename SlotType>
class TBoxPanel : public SWidget
{
public:
	using FSlot = SlotType;

	struct FArguments
	{
		FArguments& operator+(const FSlot& Slot)
		{
			Slots.Add(Slot);
			return *this;
		}

		TArray<FSlot> Slots;
	};

	static FSlot Slot() { return {}; }

	void Construct(const FArguments& InArgs) { Slots = InArgs.Slots; }

	TArray<const FSlotBase*> GetSlots() const override
	{
		TArray<const FSlotBase*> Result;
		for (const FSlot& Each : Slots)
		{
			Result.Add(&Each);
		}
		return Result;
	}

private:
	TArray<FSlot> Slots;
};

/** How much room a slot takes is not kept: nothing is laid out. */
struct FVerticalBoxSlot : TSlot<FVerticalBoxSlot>
{
	FVerticalBoxSlot& AutoHeight() { return *this; }
	FVerticalBoxSlot& FillHeight(float) { return *this; }
};

struct FHorizontalBoxSlot : TSlot<FHorizontalBoxSlot>
{
	FHorizontalBoxSlot& FillWidth(float) { return *this; }
};

/** From top to bottom. */
class SVerticalBox : public TBoxPanel<FVerticalBoxSlot>
{
};

/** From left to right. */
class SHorizontalBox : public TBoxPanel<FHorizontalBoxSlot>
{
};
