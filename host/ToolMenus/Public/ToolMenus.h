// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The registry of menus that modules extend.
#pragma once

#include "ToolMenuOwner.h"
#include "UObject/Object.h"

class TOOLMENUS_API UToolMenus : public UObject
{
public:
	/** The registry, or null unless the module "ToolMenus" is loaded. */
	static UToolMenus* TryGet();

	/** Takes away what the owner added; nothing for an unset owner or while the module is not loaded. */
	static void UnregisterOwner(FToolMenuOwner Owner)
	{
		if (UToolMenus* Registry = TryGet())
		{
			Registry->UnregisterOwnerInternal(Owner);
		}
	}

private:
	void UnregisterOwnerInternal(FToolMenuOwner Owner);
};
