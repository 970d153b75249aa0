// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/UnrealString.h"

#include <cstdarg>

/** As FString::Printf; leaves the arguments' state undefined. */
FString FormatString(const TCHAR* Format, va_list Arguments);
