// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** A function of the C library, which here is the one that is linked. */
template <class Function>
Function* systemFunction(Function* function, const char*)
{
	return function;
}
