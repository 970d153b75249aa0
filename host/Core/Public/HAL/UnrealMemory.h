// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstring>

struct FMemory
{
	static void* Memcpy(void* Dest, const void* Src, size_t Count) { return std::memcpy(Dest, Src, Count); }
};
