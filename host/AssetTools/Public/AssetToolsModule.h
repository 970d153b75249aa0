// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "IAssetTools.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"

class FAssetToolsModule : public IModuleInterface
{
public:
	void StartupModule() override;

	virtual IAssetTools& Get() const { return *AssetTools; }

private:
	TUniquePtr<IAssetTools> AssetTools;
};
