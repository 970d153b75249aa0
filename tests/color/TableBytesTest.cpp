// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Tables in the form in which looks keep them.
#include "Color/TableBytes.h"
#include "Formulas.h"

#include <cstring>
#include <gtest/gtest.h>

namespace
{
constexpr size_t HeaderSize = 60;

void put(std::vector<uint8_t>& bytes, size_t at, auto value)
{
	std::memcpy(&bytes[at], &value, sizeof value);
}
} // namespace

TEST(TableBytes, KeepEveryValueThatTheyCanHold)
{
	// Every bit pattern of 16 bits, as samples of curves.
	LookColor::FLookTable table;
	table.Shaper.resize(21846);
	std::vector<uint8_t> bytes = LookColor::BytesOf(table);
	std::vector<uint8_t> wanted = bytes;
	for (uint32_t pattern = 0; pattern < 0x10000; ++pattern)
	{
		const bool isNumber = (pattern & 0x7C00) != 0x7C00;
		put(bytes, HeaderSize + 2 * pattern, static_cast<uint16_t>(pattern));
		put(wanted, HeaderSize + 2 * pattern, static_cast<uint16_t>(isNumber ? pattern : pattern & 0x8000));
	}
	EXPECT_EQ(LookColor::BytesOf(*LookColor::TableFrom(bytes)), wanted);
}

TEST(TableBytes, RoundToTheNearestValueAndKeepTheRest)
{
	FDraw draw;
	for (const double most : {1e-6, 1e-4, 1.0, 65504.0})
	{
		LookColor::FLookTable table = drawTable(draw, 5, 3, -most, most);
		table.ShaperDomain = {{-1.0f, 0.0f, 0.25f}, {1.0f, 2.0f, 0.5f}};
		table.CubeDomain = {{0.0f, -3.0f, 0.0f}, {0.5f, 4.0f, 65504.0f}};
		const std::vector<uint8_t> bytes = LookColor::BytesOf(table);
		const LookColor::FLookTable kept = *LookColor::TableFrom(bytes);
		EXPECT_EQ(LookColor::BytesOf(kept), bytes);
		EXPECT_EQ(std::memcmp(&bytes[12], &table.ShaperDomain, 24) | std::memcmp(&bytes[36], &table.CubeDomain, 24), 0);
		for (size_t sample = 0; sample < 3 * 27; ++sample)
		{
			const double value = table.Cube[sample / 3][sample % 3];
			EXPECT_NEAR(kept.Cube[sample / 3][sample % 3], value, std::max(std::abs(value) * 0x1p-11, 0x1p-25));
		}
	}
}

TEST(TableBytes, AreRefusedUnlessAllFits)
{
	FDraw draw;
	const std::vector<uint8_t> sound = LookColor::BytesOf(drawTable(draw, 2, 2, 0, 1));
	EXPECT_TRUE(LookColor::TableFrom(sound));
	const auto isRefused = [&](size_t at, auto value)
	{
		std::vector<uint8_t> bytes = sound;
		put(bytes, at, value);
		return !LookColor::TableFrom(bytes);
	};
	EXPECT_TRUE(isRefused(0, 2u)) << "another version";
	for (const uint32_t size : {0u, 1u, 3u, 65537u, 0xFFFFFFFFu})
	{
		EXPECT_TRUE(isRefused(4, size) && isRefused(8, size)) << size;
	}
	for (const size_t at : {24u, 28u, 32u, 48u, 52u, 56u})
	{
		EXPECT_TRUE(isRefused(at, 0.0f) && isRefused(at, -1.0f) && isRefused(at, NAN) && isRefused(at, INFINITY)) << at;
	}
	for (const size_t length : {size_t(0), HeaderSize - 1, HeaderSize, sound.size() - 1, sound.size() + 1})
	{
		std::vector<uint8_t> bytes = sound;
		bytes.resize(length);
		EXPECT_FALSE(LookColor::TableFrom(bytes)) << length;
	}
	std::vector<uint8_t> nothing(sound.begin(), sound.begin() + HeaderSize);
	put(nothing, 4, uint64_t(0));
	EXPECT_FALSE(LookColor::TableFrom(nothing)) << "a table of neither curves nor cube";
}
