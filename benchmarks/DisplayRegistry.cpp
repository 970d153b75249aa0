// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Finding the display record of one client among 64, as every draw of a viewport does.
#include "Session.h"
#include "Subject.h"
#include "TonalithDisplayManager.h"
#include "UnrealClient.h"

#include <unordered_map>
#include <vector>

namespace
{
std::vector<FViewportClient>& clients()
{
	static std::vector<FViewportClient> all(64);
	return all;
}

void registry(benchmark::State& state)
{
	FTonalithDisplayManager& manager = Bench::displayRecords();
	for (FViewportClient& client : clients())
	{
		manager.FindOrAddDisplayConfiguration(&client);
	}
	size_t next = 0;
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(manager.GetDisplayConfiguration(&clients()[next++ % 64]));
	}
	for (const FViewportClient& client : clients())
	{
		manager.RemoveDisplayConfiguration(&client);
	}
}

void hashMap(benchmark::State& state)
{
	std::unordered_map<const FViewportClient*, FTonalithDisplayConfiguration> map;
	for (FViewportClient& client : clients())
	{
		map[&client];
	}
	size_t next = 0;
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(map.find(&clients()[next++ % 64]));
	}
}

const bool added = Bench::add({"display record of a client (beside std::unordered_map)", &registry, &hashMap});
} // namespace
