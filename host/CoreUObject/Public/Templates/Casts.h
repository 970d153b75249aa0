// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "UObject/ObjectPtr.h"

/** Null for null and for an object of another class. */
template <class To>
To* Cast(UObject* Object)
{
	return Object && Object->IsA(To::StaticClass()) ? static_cast<To*>(Object) : nullptr;
}
