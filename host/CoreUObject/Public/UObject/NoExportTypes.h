// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The usual first include of a reflected header.
#pragma once

#include "UObject/Object.h"
