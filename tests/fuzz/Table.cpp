// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Stored bytes of tables: what is taken can be applied, and is stored as it was but for values that are no numbers.
#include "Color/TableBytes.h"
#include "Color/TableGrader.h"
#include "Require.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	const auto table = LookColor::TableFrom({data, size});
	if (!table)
	{
		return 0;
	}
	const LookColor::FPackedCube cube(*table);
	for (const float value : {-1e30f, 0.0f, 0.25f, 1.0f, 1e30f})
	{
		const auto place = [&](size_t channel)
		{ return cube.PlaceOf(channel, LookColor::Shaped(*table, channel, value)); };
		cube.ColorAt({place(0), place(1), place(2)});
	}
	const LookColor::FTriple color = LookColor::Applied(*table, {0.25f, -1.0f, 1e30f});
	require(std::isfinite(color[0] + color[1] + color[2]), "colors are numbers");
	require(LookColor::BytesOf(*table).size() == size, "tables are stored as they were");
	return 0;
}
