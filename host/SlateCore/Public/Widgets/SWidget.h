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

	SLATECORE_API int32 Num() const;
	SLATECORE_API TSharedRef<SWidget> GetChildAt(int32 Index) const;

private:
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
	SLATECORE_API void ExecuteActiveTimers();

	/** What it was made as, such as "SCheckBox". */
	FName GetType() const { return Type; }

	FChildren* GetChildren() { return &Children; }

	/** The slots in their order, the empty ones too. */
	virtual TArray<const FSlotBase*> GetSlots() const { return {}; }

	/** Calls the function for this widget and for all below it, each parent before its children. */
	SLATECORE_API void ForEachWidget(const std::function<void(SWidget&)>& Function);

private:
	template <class WidgetType>
	friend struct TSlateDecl;

	FName Type;
	FChildren Children{*this};
	TArray<FWidgetActiveTimerDelegate> ActiveTimers;
};
