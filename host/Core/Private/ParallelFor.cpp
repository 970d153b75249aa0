// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Async/ParallelFor.h"

#include <atomic>
#include <thread>
#include <vector>

void ParallelFor(int32 Num, TFunctionRef<void(int32)> Body)
{
	std::atomic<int32> Next = 0;
	const auto Run = [&]
	{
		for (int32 Index = Next++; Index < Num; Index = Next++)
		{
			Body(Index);
		}
	};
	std::vector<std::jthread> Others;
	while (Others.size() + 1 < std::thread::hardware_concurrency())
	{
		Others.emplace_back(Run);
	}
	Run();
}
