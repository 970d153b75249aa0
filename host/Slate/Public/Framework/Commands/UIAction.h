// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Delegates/Delegate.h"

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FIsActionChecked);

/** What an entry of a menu does and shows. */
struct FUIAction
{
	FUIAction() = default;
	FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction = FCanExecuteAction(),
		FIsActionChecked InIsActionChecked = FIsActionChecked())
		: ExecuteAction(InExecuteAction), CanExecuteAction(InCanExecuteAction), IsActionChecked(InIsActionChecked)
	{
	}

	/** True when nothing is bound to ask. */
	bool CanExecute() const { return !CanExecuteAction.IsBound() || CanExecuteAction.Execute(); }

	/** @return whether the action ran */
	bool Execute() const { return CanExecute() && ExecuteAction.ExecuteIfBound(); }

	bool IsChecked() const { return IsActionChecked.IsBound() && IsActionChecked.Execute(); }

	FExecuteAction ExecuteAction;
	FCanExecuteAction CanExecuteAction;
	FIsActionChecked IsActionChecked;
};
