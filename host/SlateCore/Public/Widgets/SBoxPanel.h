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

struct FVerticalBoxSlot : TSlot<FVerticalBoxSlot>
{
	FVerticalBoxSlot& AutoHeight()
	{
		bIsAutoSized = true;
		return *this;
	}

	/** How much of the height that is left, in relation to the others. */
	FVerticalBoxSlot& FillHeight(float) { return *this; }
};

struct FHorizontalBoxSlot : TSlot<FHorizontalBoxSlot>
{
	/** How much of the room that is left, in relation to the others. */
	FHorizontalBoxSlot& FillWidth(float InShare)
	{
		Share = InShare;
		return *this;
	}

	float Share = 1.0f;
};

/** From top to bottom. */
class SVerticalBox : public TBoxPanel<FVerticalBoxSlot>
{
};

/** From left to right. */
class SHorizontalBox : public TBoxPanel<FHorizontalBoxSlot>
{
};
