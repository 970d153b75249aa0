// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** A widget made of others, which all hang below its one slot. */
class SCompoundWidget : public SWidget
{
public:
	TArray<const FSlotBase*> GetSlots() const override { return {&ChildSlot}; }

protected:
	struct FCompoundWidgetOneChildSlot : TSlot<FCompoundWidgetOneChildSlot>
	{
	};

	SCompoundWidget() = default;

	FCompoundWidgetOneChildSlot ChildSlot;
};
