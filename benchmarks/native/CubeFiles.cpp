// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Lookup tables as .cube text: read beside the bare conversion of the same numbers, and beside FFmpeg's start with it.
#include "Color/CubeReader.h"
#include "Color/CubeWriter.h"
#include "Peer.h"

#include <charconv>

namespace
{
/** 65 samples a side: 274,625 lines. */
const std::string& text()
{
	static const std::string made = LookColor::CubeText(Bench::busyTable(65));
	return made;
}

void read(benchmark::State& state)
{
	for (auto _ : state)
	{
		const auto result = LookColor::ReadCube(text());
		if (!std::holds_alternative<LookColor::FLookTable>(result))
		{
			state.SkipWithError("not read");
		}
		benchmark::DoNotOptimize(&result);
	}
}

void convertNumbers(benchmark::State& state)
{
	const std::string numbers = text().substr(text().find("\n0.", text().find("DOMAIN_MAX")) + 1);
	std::vector<float> values;
	for (auto _ : state)
	{
		values.clear();
		const char* const end = numbers.data() + numbers.size();
		for (const char* at = numbers.data(); at < end; ++at)
		{
			at = std::from_chars(at, end, values.emplace_back()).ptr;
		}
		benchmark::DoNotOptimize(values.data());
	}
	if (values.size() != 3 * 65 * 65 * 65)
	{
		state.SkipWithError("not all numbers were converted");
	}
}

void write(benchmark::State& state)
{
	const LookColor::FLookTable table = Bench::busyTable(33);
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(LookColor::CubeText(table).data());
	}
}

void peer(benchmark::State& state)
{
	Bench::peerReads(state, text());
}

const bool added = Bench::add({".cube of 65 samples read beside its numbers", &read, &convertNumbers, 2.0}) &&
				   Bench::add({".cube of 65 samples read beside FFmpeg", &read, &peer, std::nullopt, true}) &&
				   Bench::add({".cube of 33 samples written", &write});
} // namespace
