// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

/** Ends the program, which the fuzzer reports as a finding, unless what is told here holds. */
inline void require(bool holds, const char* what)
{
	if (!holds)
	{
		std::fprintf(stderr, "Not so: %s\n", what);
		std::abort();
	}
}
