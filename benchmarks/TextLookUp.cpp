// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A text by its key among 10,000, as menus take theirs.
#include "CoreMinimal.h"
#include "EditorStringTable.h"
#include "RedirectMachineFolder.h"
#include "Subject.h"

#include <filesystem>
#include <fstream>

namespace
{
std::string key(size_t number)
{
	return "Namespace" + std::to_string(number % 100) + ".Key" + std::to_string(number);
}

std::string value(size_t number)
{
	return "A text as long as texts of a user interface are, number " + std::to_string(number);
}

constexpr size_t Count = 10000;

std::vector<std::string> keys()
{
	std::vector<std::string> all;
	for (size_t number = 0; number < Count; ++number)
	{
		all.push_back(key(number));
	}
	return all;
}

void table(benchmark::State& state)
{
	static const bool loaded = []
	{
		const std::filesystem::path root = std::filesystem::temp_directory_path() / "tonalith-bench-machine";
		const std::filesystem::path folder = root / "Vantor/com.vantor.look/translations/unreal";
		std::filesystem::create_directories(folder);
		std::ofstream file(folder / "table_en-US.json", std::ios::binary);
		for (size_t number = 0; number < Count; ++number)
		{
			file << (number ? ",\n\"" : "{\"") << key(number) << "\": \"" << value(number) << '"';
		}
		file << "}";
		file.close();
		return RedirectMachineFolder(root.wstring().c_str()) && LoadStringTable("en");
	}();
	if (!loaded)
	{
		state.SkipWithError("the string table is not to be had");
		return;
	}
	const std::vector<std::string> all = keys();
	size_t next = 0;
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(LocalizedText(all[next++ % Count], {}));
	}
}

void hashMap(benchmark::State& state)
{
	std::unordered_map<std::string, std::string> map;
	const std::vector<std::string> all = keys();
	for (size_t number = 0; number < Count; ++number)
	{
		map[all[number]] = value(number);
	}
	size_t next = 0;
	for (auto _ : state)
	{
		const std::string& text = map.find(all[next++ % Count])->second;
		const FUTF8ToTCHAR wide(text.data(), static_cast<int32>(text.size()));
		benchmark::DoNotOptimize(FText::FromString(FString::ConstructFromPtrSize(wide.Get(), wide.Length())));
	}
}

const bool added = Bench::add({"text look-up among 10,000 keys", &table, &hashMap, 1.5});
} // namespace
