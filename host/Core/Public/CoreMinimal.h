// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What nearly every file of the engine and its plug-ins includes first.
#pragma once

#include "Containers/Map.h"
#include "Containers/StringConv.h"
#include "CoreGlobals.h"
#include "Delegates/Delegate.h"
#include "HAL/UnrealMemory.h"
#include "Internationalization/Internationalization.h"
#include "Math/Color.h"
#include "Math/IntRect.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector4.h"
#include "Templates/UniquePtr.h"
