// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "SlotBase.h"
#include "Types/WidgetActiveTimerDelegate.h"

#include <functional>

class SWidget;

/** The children of a widget, in their order. */
class FChildren
{
public:
	explicit FChildren(const SWidget& InOwner) : Owner(InOwner) {}

	int32 Num() const { return All().Num(); }
	TSharedRef<SWidget> GetChildAt(int32 Index) const { return All()[Index].ToSharedRef(); }

private:
	friend SWidget;
	inline TArray<TSharedPtr<SWidget>> All() const;

	const SWidget& Owner;
};

/** The base of all widgets; always owned by shared pointers. */
class SWidget : public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget() = default;

	/** Has the function called in every frame from the next one on, until it answers Stop. */
	void RegisterActiveTimer(float, FWidgetActiveTimerDelegate TickFunction) { ActiveTimers.Add(TickFunction); }

	/** A frame. */
	void ExecuteActiveTimers()
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

	/** What it was made as, such as "SCheckBox". */
	FName GetType() const { return Type; }

	FChildren* GetChildren() { return &Children; }

	/** The slots in their order, the empty ones too. */
	virtual TArray<const FSlotBase*> GetSlots() const { return {}; }

	/** Calls the function for this widget and for all below it, each parent before its children. */
	void ForEachWidget(const std::function<void(SWidget&)>& Function)
	{
		Function(*this);
		for (const TSharedPtr<SWidget>& Child : Children.All())
		{
			Child->ForEachWidget(Function);
		}
	}

private:
	template <class WidgetType>
	friend struct TSlateDecl;

	FName Type;
	FChildren Children{*this};
	TArray<FWidgetActiveTimerDelegate> ActiveTimers;
};

inline TArray<TSharedPtr<SWidget>> FChildren::All() const
{
	TArray<TSharedPtr<SWidget>> Children;
	for (const FSlotBase* Slot : Owner.GetSlots())
	{
		if (Slot->Widget.IsValid())
		{
			Children.Add(Slot->Widget);
		}
	}
	return Children;
}
