// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look asset.
#pragma once

#include "UObject/Object.h"

struct FTonalithAPI_ImageDesc;

class UTonalithObject : public UObject
{
};
