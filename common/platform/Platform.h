// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The platform's main header. All of the library reaches it here, and it never shows in a public header.
#pragma once

// Else it defines macros named min and max, which break the standard library's functions of those names.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
