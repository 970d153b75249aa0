// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Styling/SlateStyle.h"

#include <functional>

/** The style sets of the whole editor, by name. It owns none of them. */
class FSlateStyleRegistry
{
public:
	/** Fatal when a set of that name is registered. */
	SLATECORE_API static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);

	/** Nothing when it is not registered. */
	SLATECORE_API static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);

	/** Null for an unknown name. */
	SLATECORE_API static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);

	/** Calls for each set until the function returns false. @return whether all were visited */
	SLATECORE_API static bool IterateAllStyles(const std::function<bool(const ISlateStyle&)>& Visit);
};
