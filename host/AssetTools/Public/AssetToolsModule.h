// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "IAssetTools.h"
#include "Modules/ModuleInterface.h"

class FAssetToolsModule : public IModuleInterface
{
public:
	virtual IAssetTools& Get() const { return AssetTools; }

private:
	mutable IAssetTools AssetTools;
};
