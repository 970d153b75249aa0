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

std::vector<std::string> names()
{
	std::vector<std::string> all;
	for (int number = 0; number < Names; ++number)
	{
		all.push_back("Shot " + std::to_string(number) + " & take (2)");
	}
	return all;
}

std::string path()
{
	std::string path = "C:";
	for (const std::string& name : names())
	{
		path += '\\' + name;
	}
	return path;
}

void pathAndBack(benchmark::State& state)
{
	const std::string whole = path();
	for (auto _ : state)
	{
		benchmark::DoNotOptimize(Kiln::fileUrlToPath(Kiln::pathToFileUrl(whole)));
	}
}

void platformCalls(benchmark::State& state)
{
	const std::vector<std::string> all = names();
	std::string url = Kiln::pathToFileUrl(path());
	for (auto _ : state)
	{
		for (const std::string& name : all)
		{
			char escaped[2083];
			DWORD length = sizeof escaped;
			UrlEscapeA(name.c_str(), escaped, &length, 0);
			benchmark::DoNotOptimize(escaped);
		}
		char plain[2083];
		DWORD length = sizeof plain;
		UrlUnescapeA(url.data(), plain, &length, 0);
		benchmark::DoNotOptimize(plain);
	}
}

const bool isAdded = Bench::add({"path to URL and back, 20 names", pathAndBack, platformCalls, 1.5});
} // namespace
