// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A log line written and flushed, beside the C library's stream; and one that the level drops, beside the text alone.
#include "Subject.h"

#include <cstdio>
#include <filesystem>
#include <kiln/Logger.h>
#include <kiln/Unicode.h>
#include <sstream>
#include <string>

namespace
{
const std::string Name = "VolumeEventMonitor";
const std::string Text = "Could not open the device of the volume mounted at ";
constexpr int Error = 1117;

std::filesystem::path logFile(const wchar_t* name)
{
	std::filesystem::path file = std::filesystem::temp_directory_path() / name;
	std::filesystem::remove(file);
	return file;
}

void writeLine(benchmark::State& state)
{
	Kiln::Logger logger;
	logger.setDefaultLogFile(Kiln::toUtf8(logFile(L"tonalith-bench-ours.log").native()));
	Kiln::LoggingComponent& component = *logger.component(Name);
	std::ostringstream stream;
	component.warning(stream) << Text << "E: " << Error;
	const std::string line = stream.str();
	for (auto _ : state)
	{
		component.log(line, Kiln::LogLevel::warning);
	}
}

void writeBytes(benchmark::State& state)
{
	std::FILE* const file = _wfopen(logFile(L"tonalith-bench-baseline.log").c_str(), L"a");
	if (!file)
	{
		state.SkipWithError("the log file is not to be had");
		return;
	}
	const std::string line = "26-11-14 03:36:50 [WRN] " + Name + ": " + Text + "E: " + std::to_string(Error) + "\n";
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(std::fwrite(line.data(), 1, line.size(), file));
		std::fflush(file);
	}
	std::fclose(file);
}

void dropLine(benchmark::State& state)
{
	Kiln::Logger logger;
	Kiln::LoggingComponent& component = *logger.component(Name);
	component.setLevel(Kiln::LogLevel::error);
	for (auto _ : state)
	{
		std::ostringstream stream;
		component.warning(stream) << Text << "E: " << Error;
		component.log(stream.str(), Kiln::LogLevel::warning);
	}
}

void buildText(benchmark::State& state)
{
	for (auto _ : state)
	{
		std::ostringstream stream;
		stream << "26-11-14 03:36:50 "
			   << "[WRN] " << Name << ": " << Text << "E: " << Error;
		benchmark::DoNotOptimize(stream.str());
	}
}

const bool isWriteAdded = Bench::add({"log line, written and flushed", writeLine, writeBytes, 1.3});
const bool isDropAdded = Bench::add({"log line, filtered", dropLine, buildText, 1.5});
} // namespace
