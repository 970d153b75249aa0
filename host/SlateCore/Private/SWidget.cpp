// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Widgets/SWidget.h"

void SWidget::ForEachWidget(const std::function<void(SWidget&)>& Function)
{
	Function(*this);
	for (const FSlotBase* Slot : GetSlots())
	{
		if (Slot->Widget.IsValid())
		{
			Slot->Widget->ForEachWidget(Function);
		}
	}
}
