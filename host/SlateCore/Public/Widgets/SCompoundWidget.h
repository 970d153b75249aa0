// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/SWidget.h"

class SCompoundWidget : public SWidget
{
protected:
	SCompoundWidget() = default;
};
