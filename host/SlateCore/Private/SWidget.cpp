// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Widgets/SWidget.h"

#include <utility>

namespace
{
TArray<TSharedPtr<SWidget>> ChildrenOf(const SWidget& Widget)
{
	TArray<TSharedPtr<SWidget>> Children;
	for (const FSlotBase* Slot : Widget.GetSlots())
	{
		if (Slot->Widget.IsValid())
		{
			Children.Add(Slot->Widget);
		}
	}
	return Children;
}
} // namespace

int32 FChildren::Num() const
{
	return ChildrenOf(Owner).Num();
}

TSharedRef<SWidget> FChildren::GetChildAt(int32 Index) const
{
	return ChildrenOf(Owner)[Index].ToSharedRef();
}

void SWidget::ForEachWidget(const std::function<void(SWidget&)>& Function)
{
	Function(*this);
	for (const TSharedPtr<SWidget>& Child : ChildrenOf(*this))
	{
		Child->ForEachWidget(Function);
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
