// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// .cube text: what is read is sound and comes back, what is refused is refused in one short line.
#include "Color/CubeReader.h"
#include "Color/CubeWriter.h"
#include "Color/TableBytes.h"

#include <algorithm>
#include <cstdlib>

namespace
{
void require(bool holds)
{
	if (!holds)
	{
		std::abort();
	}
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	const std::string_view text(reinterpret_cast<const char*>(data), size);
	const auto result = LookColor::ReadCube(text);
	if (const auto* error = std::get_if<LookColor::FCubeError>(&result))
	{
		require(error->Line >= 1 && error->Line <= size + 1 && error->Expected.size() + error->Found.size() < 300);
		const std::string words = error->Expected + error->Found;
		require(std::all_of(words.begin(), words.end(), [](char byte) { return byte >= 0x20 && byte < 0x7F; }));
		return 0;
	}
	const auto& table = std::get<LookColor::FLookTable>(result);
	require((table.Shaper.size() + table.Cube.size()) * 6 <= size);
	require(LookColor::TableFrom(LookColor::BytesOf(table)).has_value());
	require(std::holds_alternative<LookColor::FLookTable>(LookColor::ReadCube(LookColor::CubeText(table))));
	return 0;
}
