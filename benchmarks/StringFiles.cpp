// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// String files: reading one of 10,000 keys, and choosing one out of 1,000.
#include "Memory.h"
#include "Subject.h"

#include <filesystem>
#include <fstream>
#include <kiln/FolderLoader.h>
#include <kiln/Folders.h>
#include <kiln/JSONLoadHelper.h>
#include <kiln/JSONLoader.h>
#include <rapidjson/document.h>

namespace
{
using Kiln::Locale::StringTable;

std::filesystem::path folder()
{
	return std::filesystem::temp_directory_path() / "tonalith-bench-strings";
}

const std::string& text()
{
	static const std::string json = []
	{
		std::string all = "{\n";
		for (int key = 0; key < 10000; ++key)
		{
			all += (key ? ",\n" : "") + ("\t\"Namespace" + std::to_string(key % 100) + ".Key" + std::to_string(key)) +
				   "\": \"A text as long as texts of a user interface are, number " + std::to_string(key) + "\"";
		}
		return all + "\n}\n";
	}();
	return json;
}

rapidjson::Document parsed()
{
	rapidjson::Document document;
	document.Parse<rapidjson::kParseIterativeFlag>(text().data(), text().size());
	return document;
}

void inserts(benchmark::State& state)
{
	for (auto _ : state)
	{
		StringTable table;
		const rapidjson::Document document = parsed();
		for (const auto& [name, value] : document.GetObject())
		{
			table[std::string(name.GetString(), name.GetStringLength())] =
				std::string(value.GetString(), value.GetStringLength());
		}
		benchmark::DoNotOptimize(table);
	}
}

void walk(benchmark::State& state)
{
	for (auto _ : state)
	{
		StringTable table;
		Kiln::Locale::JSONLoadHelper(table).fromRapidJson(parsed());
		benchmark::DoNotOptimize(table);
	}
}

void loader(benchmark::State& state)
{
	std::filesystem::create_directories(folder());
	const std::filesystem::path file = folder() / "large.json";
	std::ofstream(file, std::ios::binary) << text();
	for (auto _ : state)
	{
		StringTable table;
		Kiln::Locale::JSONLoader(file.string()).load(table, "en");
		benchmark::DoNotOptimize(table);
	}
}

/** Fails when the memory taken is more than a small multiple of the file's size. */
void largeFile(benchmark::State& state)
{
	constexpr uint64_t Size = 100'000'000;
	constexpr uint64_t MemoryLimit = 6 * Size;
	std::filesystem::create_directories(folder());
	const std::filesystem::path file = folder() / "huge.json";
	{
		std::ofstream stream(file, std::ios::binary);
		stream << '{';
		for (uint64_t key = 0; static_cast<uint64_t>(stream.tellp()) < Size; ++key)
		{
			stream << (key ? ",\n" : "\n") << "\"Key" << key << "\": \"" << std::string(80, 'x') << '"';
		}
		stream << "\n}\n";
	}
	for (auto _ : state)
	{
		const uint64_t before = Bench::peakMemory();
		StringTable table;
		Kiln::Locale::JSONLoader(file.string()).load(table, "en");
		if (table.empty() || Bench::peakMemory() - before > MemoryLimit)
		{
			state.SkipWithError("the file was not read, or took more than six times its size");
		}
	}
	std::filesystem::remove(file);
}

/** 1,000 string files. */
std::string fullFolder()
{
	const std::filesystem::path full = folder() / "full";
	std::filesystem::create_directories(full);
	for (int file = 0; file < 1000; ++file)
	{
		std::ofstream(full / ("table_x" + std::to_string(file) + "-YY.json")) << "{}";
	}
	return full.string();
}

void choice(benchmark::State& state)
{
	const Kiln::Locale::FolderLoader chooser(fullFolder(), "table");
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(chooser.choose("x500"));
	}
}

void listing(benchmark::State& state)
{
	const std::string full = fullFolder();
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(Kiln::listFiles(full));
	}
}

const bool added = Bench::add({"string file of 10,000 keys, the walk", &walk, &inserts, 1.5}) &&
				   Bench::add({"string file of 10,000 keys, the whole loader", &loader, &inserts}) &&
				   Bench::add({"string file of 100 MB, the whole loader", &largeFile}) &&
				   Bench::add({"locale choice among 1,000 files", &choice, &listing, 1.5});
} // namespace
