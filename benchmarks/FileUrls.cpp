// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A path to its URL and back, beside the platform's calls alone on the same names.
#include "Subject.h"

#include <kiln/Url.h>
#include <shlwapi.h>
#include <string>
#include <vector>

namespace
{
constexpr int Names = 20;

std::string name(int number)
{
	return "Shot " + std::to_string(number) + " & take (2)";
}

void pathAndBack(benchmark::State& state)
{
	std::string path = "C:";
	for (int number = 0; number < Names; ++number)
	{
		path += '\\' + name(number);
	}
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(Kiln::fileUrlToPath(Kiln::pathToFileUrl(path)));
	}
}

void platformCalls(benchmark::State& state)
{
	std::vector<std::string> names;
	std::string url = "C:";
	for (int number = 0; number < Names; ++number)
	{
		names.push_back(name(number));
		url += '/' + names.back();
	}
	for (auto _ : state)
	{
		for (const std::string& each : names)
		{
			char escaped[2083];
			DWORD length = sizeof escaped;
			UrlEscapeA(each.c_str(), escaped, &length, 0);
			benchmark::DoNotOptimize(escaped);
		}
		char path[2083];
		DWORD length = sizeof path;
		UrlUnescapeA(url.data(), path, &length, 0);
		benchmark::DoNotOptimize(path);
	}
}

const bool isAdded = Bench::add({"path to URL and back, 20 names", pathAndBack, platformCalls, 1.5});
} // namespace
