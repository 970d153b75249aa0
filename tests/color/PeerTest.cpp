// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks that we write, applied by another program: FFmpeg. Skipped where there is none.
#include "Color/CubeWriter.h"
#include "Color/LookBaker.h"
#include "Color/TableGrader.h"
#include "Formulas.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

TEST(Peer, MakesTheSameOfOurCubes)
{
	if (std::system("ffmpeg -version >/dev/null 2>&1") != 0)
	{
		GTEST_SKIP() << "no FFmpeg on this machine";
	}
	const std::filesystem::path folder = std::filesystem::temp_directory_path() / "tonalith-peer";
	std::filesystem::create_directories(folder);
	constexpr size_t count = 256 * 256;
	FDraw draw;
	std::vector<uint8_t> pixels(4 * count);
	std::generate(pixels.begin(), pixels.end(), [&] { return static_cast<uint8_t>(draw.Below(256)); });
	const LookColor::FGrading busy{
		{{1.2, 1.1, 0.95, 1.1, 0.01}, {1.25, 1.15, 1.0, 1.0, 0.0}, {1.15, 1.1, 1.05, 0.9, 0.02}}};
	const LookColor::FLookTable table = drawTable(draw, 0, 17, 0, 1);
	for (const size_t size : {33u, 65u})
	{
		// It knows cubes and curves, but not both in one file.
		LookColor::FLookTable baked = LookColor::Baked(size == 33 ? LookColor::FGrading() : busy, &table, size);
		baked.Shaper.clear();
		std::ofstream(folder / "look.cube") << LookColor::CubeText(baked);
		std::ofstream(folder / "plain.rgba", std::ios::binary)
			.write(reinterpret_cast<const char*>(pixels.data()), 4 * count);
		const std::string command =
			"cd " + folder.string() +
			" && ffmpeg -nostdin -y -v error -f rawvideo -pix_fmt rgba -video_size 256x256 -i plain.rgba"
			" -vf lut3d=file=look.cube:interp=tetrahedral -pix_fmt rgba -f rawvideo graded.rgba";
		ASSERT_EQ(std::system(command.c_str()), 0);
		std::vector<uint8_t> ours(pixels.size());
		const LookColor::FPackedCube cube(baked);
		LookColor::FTableGrader({}, baked, cube).Grade(pixels.data(), ours.data(), count);
		std::ifstream graded(folder / "graded.rgba", std::ios::binary);
		const std::string theirs(std::istreambuf_iterator<char>(graded), {});
		ASSERT_EQ(theirs.size(), ours.size());
		int worst = 0;
		for (size_t at = 0; at < ours.size(); ++at)
		{
			worst = std::max(worst, std::abs(static_cast<uint8_t>(theirs[at]) - ours[at]));
		}
		EXPECT_LE(worst, 1) << size;
	}
	std::filesystem::remove_all(folder);
}
