// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "SlotBase.h"
#include "Types/WidgetActiveTimerDelegate.h"

#include <functional>

/** The base of all widgets; always owned by shared pointers. */
class SWidget : public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget() = default;

	/** Has the function called in every frame from the next one on, until it answers Stop. */
	void RegisterActiveTimer(float, FWidgetActiveTimerDelegate TickFunction) { ActiveTimers.Add(TickFunction); }

	/** A frame. */
	SLATECORE_API void ExecuteActiveTimers();

	/** The slots in their order, the empty ones too. */
	virtual TArray<const FSlotBase*> GetSlots() const { return {}; }

	/** Calls the function for this widget and for all below it, each parent before its children. */
	SLATECORE_API void ForEachWidget(const std::function<void(SWidget&)>& Function);

private:
	TArray<FWidgetActiveTimerDelegate> ActiveTimers;
};
