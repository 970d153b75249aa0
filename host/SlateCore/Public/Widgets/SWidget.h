// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "SlotBase.h"

#include <functional>

/** The base of all widgets; always owned by shared pointers. */
class SWidget : public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget() = default;

	/** The slots in their order, the empty ones too. */
	virtual TArray<const FSlotBase*> GetSlots() const { return {}; }

	/** Calls the function for this widget and for all below it, each parent before its children. */
	SLATECORE_API void ForEachWidget(const std::function<void(SWidget&)>& Function);
};
