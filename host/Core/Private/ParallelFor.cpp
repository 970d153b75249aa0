// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Async/ParallelFor.h"

#include <algorithm>
#include <thread>
#include <vector>

void ParallelFor(int32 Num, TFunctionRef<void(int32)> Body)
{
	const int32 Parts = std::clamp(static_cast<int32>(std::thread::hardware_concurrency()), 1, std::max(Num, 1));
	const auto RunPart = [=, &Body](int32 Part)
	{
		const int64 Count = Num;
		for (int64 Index = Count * Part / Parts; Index < Count * (Part + 1) / Parts; ++Index)
		{
			Body(static_cast<int32>(Index));
		}
	};
	std::vector<std::jthread> Others;
	for (int32 Part = 1; Part < Parts; ++Part)
	{
		Others.emplace_back(RunPart, Part);
	}
	RunPart(0);
}
