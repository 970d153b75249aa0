// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "CoreMinimal.h"

/** The base of all widgets; always owned by shared pointers. */
class SWidget : public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget() = default;
};
