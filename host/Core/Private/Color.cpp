// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Math/Color.h"

const FColor FColor::White(255, 255, 255);
