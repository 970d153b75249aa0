// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "DetailsViewArgs.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"

class IDetailsView;

class FPropertyEditorModule : public IModuleInterface
{
public:
	virtual TSharedRef<IDetailsView> CreateDetailView(const FDetailsViewArgs& DetailsViewArgs);
};
