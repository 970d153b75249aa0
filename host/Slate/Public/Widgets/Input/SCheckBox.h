// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Framework/Commands/UIAction.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** Shows whether something is on. */
class SCheckBox : public SWidget
{
public:
	SLATE_BEGIN_ARGS(SCheckBox) {}
	SLATE_ARGUMENT(FUIAction, Action)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Action = InArgs._Action; }

	bool IsChecked() const { return Action.IsChecked(); }

	/** As a click on it does. */
	void ToggleCheckedState() { Action.Execute(); }

private:
	FUIAction Action;
};
