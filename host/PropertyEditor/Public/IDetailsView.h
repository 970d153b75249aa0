// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/SCompoundWidget.h"

class UObject;

/** The properties of an object to read and to edit. The object is not kept alive. */
class IDetailsView : public SCompoundWidget
{
public:
	/** Null shows nothing. */
	virtual void SetObject(UObject* InObject, bool bForceRefresh = false) = 0;
};
