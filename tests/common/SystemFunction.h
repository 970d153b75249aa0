// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/**
 * A function of the C library itself. Its address in this program is that of a jump through the import table, where its
 * replacement stands.
 */
template <class Function>
Function* systemFunction(Function*, const char* name)
{
	return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"msvcrt.dll"), name)));
}
