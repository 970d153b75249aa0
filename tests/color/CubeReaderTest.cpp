// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What is read of .cube text, what is refused and with which words.
#include "Color/CubeReader.h"
#include "Color/CubeWriter.h"
#include "Formulas.h"

#include <gtest/gtest.h>
#include <sstream>

namespace
{
std::string words(const LookColor::FTriple& triple)
{
	std::ostringstream text;
	text << triple[0] << " " << triple[1] << " " << triple[2];
	return text.str();
}

/** Title, then each stage: size, domain, first and last sample. For a refused text why it is. */
std::string seen(const std::string& text)
{
	const auto result = LookColor::ReadCube(text);
	std::ostringstream line;
	if (const auto* error = std::get_if<LookColor::FCubeError>(&result))
	{
		line << error->Line << ": expected " << error->Expected << ", found " << error->Found;
		return line.str();
	}
	const auto& table = std::get<LookColor::FLookTable>(result);
	line << table.Title;
	const auto stage = [&](const char* name, size_t size, const auto& samples, const LookColor::FTableDomain& domain)
	{
		if (!samples.empty())
		{
			line << "|" << name << size << " [" << words(domain.Begin) << "; " << words(domain.End) << "] "
				 << words(samples.front()) << " ... " << words(samples.back());
		}
	};
	stage("curves ", table.Shaper.size(), table.Shaper, table.ShaperDomain);
	stage("cube ", table.CubeSize, table.Cube, table.CubeDomain);
	return line.str();
}

const std::string Eight = "0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n";
const std::string EightSeen = "|cube 2 [0 0 0; 1 1 1] 0 0 0 ... 1 1 1";

struct FRow
{
	std::string text;
	std::string seen;
};
} // namespace

TEST(CubeReader, ReadsAllThatProgramsWrite)
{
	const FRow rows[] = {
		{"LUT_3D_SIZE 2\n" + Eight, EightSeen},
		{"\xEF\xBB\xBFTITLE \"Abend, D\xC3\xA4mmerung\"\nLUT_3D_SIZE 2\n" + Eight,
			"Abend, D\xC3\xA4mmerung" + EightSeen},
		{"# made by hand\n\n\t LUT_3D_SIZE\t+2 # samples\n\n" + Eight + "# the end\n\n", EightSeen},
		{"LUT_3D_SIZE 2\r\n0 0 0\r\n1 0 0\r0 1 0\n\n1 1 0\n#\n 0\t0\v1\f\n1 0 1\n0 1 1\n1 1 1", EightSeen},
		{"DOMAIN_MAX 2 3 4\nLUT_3D_SIZE 2\nTITLE \"\"\nDOMAIN_MIN -1 0 .5\n" + Eight,
			"|cube 2 [-1 0 0.5; 2 3 4] 0 0 0 ... 1 1 1"},
		{"LUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE -0.5 1.5\n" + Eight,
			"|cube 2 [-0.5 -0.5 -0.5; 1.5 1.5 1.5] 0 0 0 ... 1 1 1"},
		{"LUT_1D_SIZE 2\nLUT_1D_INPUT_RANGE 0 2\n-1e-1 +2.5E0 0.25\n65504 -65504 1e-60",
			"|curves 2 [0 0 0; 2 2 2] -0.1 2.5 0.25 ... 65504 -65504 0"},
		{"LUT_1D_SIZE 2\nLUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE 0 4\nLUT_1D_INPUT_RANGE 0 2\n0 0 0\n4 4 4\n" + Eight,
			"|curves 2 [0 0 0; 2 2 2] 0 0 0 ... 4 4 4|cube 2 [0 0 0; 4 4 4] 0 0 0 ... 1 1 1"},
		{"LUT_3D_SIZE 2\nLUT_1D_SIZE 3\nDOMAIN_MIN 0 0 0\nDOMAIN_MAX 2 2 2\n0 0 0\n0.5 0.5 0.5\n1 1 1\n" + Eight,
			"|curves 3 [0 0 0; 2 2 2] 0 0 0 ... 1 1 1|cube 2 [0 0 0; 1 1 1] 0 0 0 ... 1 1 1"},
		{"LUT_1D_SIZE 2\n0." + std::string(60, '0') + "1 0 0\n1 1 1#white", "|curves 2 [0 0 0; 1 1 1] 0 0 0 ... 1 1 1"},
	};
	for (const FRow& row : rows)
	{
		EXPECT_EQ(seen(row.text), row.seen) << row.text;
	}
	// Red runs fastest.
	const auto table = std::get<LookColor::FLookTable>(LookColor::ReadCube("LUT_3D_SIZE 2\n" + Eight));
	EXPECT_EQ(words(table.Cube[1]) + "|" + words(table.Cube[2]) + "|" + words(table.Cube[4]), "1 0 0|0 1 0|0 0 1");
}

TEST(CubeReader, RefusesTheRestInOneLine)
{
	using namespace std::string_literals;
	const std::string size = "expected a size from 2 to ";
	const std::string triple = "expected three numbers from -65504 to 65504, found ";
	const std::string domain = "expected a domain that begins below its end, found an empty or reversed one";
	const std::string title = "expected a title in quotes, of at most 254 printable bytes, found ";
	const FRow rows[] = {
		{"", "1: expected LUT_1D_SIZE or LUT_3D_SIZE, found the end of the file"},
		{"\n0 0 0\n", "2: expected LUT_1D_SIZE or LUT_3D_SIZE before the first color, found \"0 0 0\""},
		{"LUT_3D_SIZE 129\n" + Eight, "9: expected 2146689 colors, found the end of the file"},
		{"LUT_3D_SIZE 130", "1: " + size + "129, found \"LUT_3D_SIZE 130\""},
		{"LUT_3D_SIZE 1", "1: " + size + "129, found \"LUT_3D_SIZE 1\""},
		{"LUT_3D_SIZE -2", "1: " + size + "129, found \"LUT_3D_SIZE -2\""},
		{"LUT_3D_SIZE 2.5", "1: " + size + "129, found \"LUT_3D_SIZE 2.5\""},
		{"LUT_3D_SIZE\n2", "1: " + size + "129, found \"LUT_3D_SIZE\""},
		{"LUT_1D_SIZE 65537", "1: " + size + "65536, found \"LUT_1D_SIZE 65537\""},
		{"LUT_1D_SIZE 99999999999999999999999", "1: " + size + "65536, found \"LUT_1D_SIZE 99999999999999999999999\""},
		{"LUT_3D_SIZE 2 3", "1: expected the end of the line behind that, found \"LUT_3D_SIZE 2 3\""},
		{"LUT_3D_SIZE 2\nLUT_3D_SIZE 2", "2: expected LUT_3D_SIZE once, found it again"},
		{"LUT_2D_SIZE 2", "1: expected a keyword of lookup tables or three numbers, found \"LUT_2D_SIZE 2\""},
		{"LUT_3D_SIZE 2\n" + Eight + "1 1 1\n", "10: expected the end of the file behind 8 colors, found \"1 1 1\""},
		{"LUT_3D_SIZE 2\n0 0 0\n\n0 0", "4: " + triple + "\"0 0\""},
		{"LUT_3D_SIZE 2\n0 0 0 0", "2: expected the end of the line behind that, found \"0 0 0 0\""},
		{"LUT_3D_SIZE 2\n0 0 0\nTITLE \"late\"", "3: " + triple + "\"TITLE \"late\"\""},
		{"LUT_3D_SIZE 2\n0,5 0 0", "2: " + triple + "\"0,5 0 0\""},
		{"LUT_3D_SIZE 2\n0 0 nan", "2: " + triple + "\"0 0 nan\""},
		{"LUT_3D_SIZE 2\n0 0 65505", "2: " + triple + "\"0 0 65505\""},
		{"LUT_3D_SIZE 2\n0 0 +-1", "2: " + triple + "\"0 0 +-1\""},
		{"LUT_3D_SIZE 2\n0 0 0x1", "2: " + triple + "\"0 0 0x1\""},
		{"LUT_3D_SIZE 2\nDOMAIN_MIN 0 0\n", "2: " + triple + "\"DOMAIN_MIN 0 0\""},
		{"LUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE 0\n",
			"2: expected two numbers from -65504 to 65504, found \"LUT_3D_INPUT_RANGE 0\""},
		{"LUT_3D_SIZE 2\nDOMAIN_MIN 0 1 0\n" + Eight, "3: " + domain},
		{"LUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE 1 0\n" + Eight, "3: " + domain},
		{"LUT_3D_SIZE 2\nDOMAIN_MIN 0 0 0\nLUT_3D_INPUT_RANGE 0 1\n" + Eight,
			"4: expected either DOMAIN_MIN and DOMAIN_MAX or an INPUT_RANGE, found both"},
		{"TITLE \"open", "1: " + title + "\"TITLE \"open\""},
		{"TITLE \"a\0b\""s, "1: " + title + "\"TITLE \"a\\x00b\"\""},
		{"TITLE \"" + std::string(255, 'x') + "\"", "1: " + title + "\"TITLE \"" + std::string(33, 'x') + "...\""},
		{"LUT_3D_SIZE 2\n0 0 \0"s, "2: " + triple + "\"0 0 \\x00\""},
		{"\xFF\xFEL\0U\0"s, "1: expected UTF-8 text, found UTF-16"},
		{"\xFE\xFF\0L\0U"s, "1: expected UTF-8 text, found UTF-16"},
		{"PK\x03\x04", "1: expected a keyword of lookup tables or three numbers, found \"PK\\x03\\x04\""},
		{std::string(100'000'000, 'x'),
			"1: expected a keyword of lookup tables or three numbers, found \"" + std::string(40, 'x') + "...\""},
	};
	for (const FRow& row : rows)
	{
		EXPECT_EQ(seen(row.text), row.seen);
	}
	EXPECT_EQ(seen("#" + std::string(100'000'000, 'x') + "\nLUT_3D_SIZE 2\n" + Eight), EightSeen) << "a long comment";
}

TEST(CubeReader, ReadsWhatTheWriterWrites)
{
	FDraw draw;
	for (int round = 0; round < 200; ++round)
	{
		const size_t shaperSize = draw.Below(3) ? 2 + draw.Below(40) : 0;
		const size_t cubeSize = shaperSize == 0 || draw.Below(2) ? 2 + draw.Below(6) : 0;
		LookColor::FLookTable table = drawTable(draw, shaperSize, cubeSize, -2, 3);
		table.Title = "Round " + std::to_string(round);
		table.ShaperDomain.End.fill(static_cast<float>(draw.From(0.5, 2)));
		table.CubeDomain.Begin.fill(shaperSize ? static_cast<float>(draw.From(-1, 0.25)) : 0.0f);
		const std::string text = LookColor::CubeText(table);
		const auto read = std::get<LookColor::FLookTable>(LookColor::ReadCube(text));
		EXPECT_EQ(LookColor::CubeText(read), text);
		EXPECT_EQ(read.Title, table.Title);
		ASSERT_EQ(read.Shaper.size(), table.Shaper.size());
		ASSERT_EQ(read.Cube.size(), table.Cube.size());
		for (size_t i = 0; i < table.Cube.size(); ++i)
		{
			EXPECT_NEAR(read.Cube[i][i % 3], table.Cube[i][i % 3], 6e-7);
		}
		EXPECT_TRUE(shaperSize == 0 || std::abs(read.ShaperDomain.End[2] - table.ShaperDomain.End[2]) < 6e-7f);
		EXPECT_TRUE(cubeSize == 0 || std::abs(read.CubeDomain.Begin[2] - table.CubeDomain.Begin[2]) < 6e-7f);
	}
	LookColor::FLookTable table = drawTable(draw, 0, 2, 0, 1);
	table.Title = "D\xC3\xA4mmerung \"2\"";
	EXPECT_EQ(LookColor::CubeText(table).substr(0, 70),
		"TITLE \"D??mmerung ?2?\"\nLUT_3D_SIZE 2\nDOMAIN_MIN 0.000000 0.000000 0.00");
}
