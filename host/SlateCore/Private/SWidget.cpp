// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Widgets/SWidget.h"

#include <utility>

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

void SWidget::ExecuteActiveTimers()
{
	// What is registered meanwhile waits for the next frame.
	for (const FWidgetActiveTimerDelegate& Timer : std::exchange(ActiveTimers, {}))
	{
		if (Timer.IsBound() && Timer.Execute(0.0, 0.0f) == EActiveTimerReturnType::Continue)
		{
			ActiveTimers.Add(Timer);
		}
	}
}
