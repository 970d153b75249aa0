// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Peer.h"

#include "Color/CubeWriter.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace Bench
{
namespace
{
constexpr size_t FrameCount = 60;

/** A folder for the files of one measurement. */
class Folder
{
public:
	Folder() { std::filesystem::create_directories(path); }
	~Folder() { std::filesystem::remove_all(path); }
	Folder(const Folder&) = delete;
	Folder& operator=(const Folder&) = delete;

	const std::filesystem::path path = std::filesystem::temp_directory_path() / "tonalith-bench-peer";
};

std::string cubeFile(const Folder& folder, const std::string& text)
{
	const std::filesystem::path file = folder.path / "look.cube";
	std::ofstream(file, std::ios::binary) << text;
	return file.string();
}

/** All frames, each as its planes of green, blue and red. */
std::string framesFile(const Folder& folder, const Frame& frame)
{
	std::string planes;
	for (const size_t channel : {1u, 2u, 0u})
	{
		for (size_t index = channel; index < frame.pixels.size(); index += 4)
		{
			planes += static_cast<char>(frame.pixels[index]);
		}
	}
	const std::filesystem::path file = folder.path / "frames.raw";
	std::ofstream stream(file, std::ios::binary);
	for (size_t count = 0; count < FrameCount; ++count)
	{
		stream << planes;
	}
	return file.string();
}

/** Seconds that the program runs for; negative when it fails. */
double secondsOf(const std::string& input, const std::string& filter)
{
	const std::string command = "ffmpeg -nostdin -v error -threads 1 -filter_threads 1 " + input + " -vf " + filter +
								" -threads 1 -f null - </dev/null";
	const auto begin = std::chrono::steady_clock::now();
	const int code = std::system(command.c_str());
	const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
	return code == 0 ? seconds.count() : -1.0;
}

void measureFilter(benchmark::State& state, const std::string& input, const std::string& cube, size_t frames)
{
	for (auto _ : state)
	{
		const double with = secondsOf(input, "lut3d=file=" + cube + ":interp=tetrahedral");
		const double without = secondsOf(input, "null");
		if (with < 0.0 || without < 0.0)
		{
			state.SkipWithError("FFmpeg failed");
			break;
		}
		state.SetIterationTime((with - without) / static_cast<double>(frames));
	}
}
} // namespace

void peerOn(benchmark::State& state, const LookColor::FLookTable& table, const Frame& frame)
{
	const Folder folder;
	const std::string input = "-f rawvideo -pix_fmt gbrp -video_size " + std::to_string(frame.width) + "x" +
							  std::to_string(frame.height) + " -i " + framesFile(folder, frame);
	measureFilter(state, input, cubeFile(folder, LookColor::CubeText(table)), FrameCount);
}

void peerReads(benchmark::State& state, const std::string& cube)
{
	const Folder folder;
	measureFilter(state, "-f lavfi -i color=size=16x16:rate=1:duration=1,format=gbrp", cubeFile(folder, cube), 1);
}
} // namespace Bench
