// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Alone in its file: the platform's header has macros named like functions of the JSON library.
#include "Memory.h"

#include <windows.h>

#include <psapi.h>

uint64_t Bench::peakMemory()
{
	PROCESS_MEMORY_COUNTERS counters{};
	GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
	return counters.PeakWorkingSetSize;
}
