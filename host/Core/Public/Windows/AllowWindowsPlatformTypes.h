// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Stands before Windows headers. Nesting is an error.
#ifdef WINDOWS_PLATFORM_TYPES_GUARD
#error Windows platform types are allowed already
#endif
#define WINDOWS_PLATFORM_TYPES_GUARD

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
