// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// .cube text: what is read is sound and comes back, what is refused is refused in one short line.
#include "Color/CubeReader.h"
#include "Color/CubeWriter.h"
#include "Color/TableBytes.h"
#include "Require.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	const std::string_view text(reinterpret_cast<const char*>(data), size);
	const auto result = LookColor::ReadCube(text);
	if (const auto* error = std::get_if<LookColor::FCubeError>(&result))
	{
		require(error->Line >= 1 && error->Line <= size + 1, "errors are within the text");
		const std::string words = error->Expected + error->Found;
		const bool isPlain =
			std::all_of(words.begin(), words.end(), [](char byte) { return byte >= 0x20 && byte < 0x7F; });
		require(isPlain && words.size() < 300, "errors are short and in ASCII");
		return 0;
	}
	const auto& table = std::get<LookColor::FLookTable>(result);
	require((table.Shaper.size() + table.Cube.size()) * 6 <= size, "tables are no larger than their texts");
	require(LookColor::TableFrom(LookColor::BytesOf(table)).has_value(), "tables can be stored");
	const auto again = LookColor::ReadCube(LookColor::CubeText(table));
	require(std::holds_alternative<LookColor::FLookTable>(again), "tables are read from what is written of them");
	return 0;
}
