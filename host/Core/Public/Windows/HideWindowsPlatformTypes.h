// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Stands behind Windows headers.
#ifndef WINDOWS_PLATFORM_TYPES_GUARD
#error Windows platform types are not allowed
#endif
#undef WINDOWS_PLATFORM_TYPES_GUARD
